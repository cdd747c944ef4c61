#include "persist/RecordStream.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using zv::RecordReader;
using zv::RecordWriter;

std::string BytesOf(const RecordWriter& writer) {
    return {writer.Bytes().begin(), writer.Bytes().end()};
}

/// Hands out pieces of a text, a few bytes at a time.
class Pieces : public zv::RecordSource {
  public:
    Pieces(std::string text, std::size_t size) : m_text(std::move(text)), m_size(size) {}
    std::span<const char> More() override {
        const std::size_t size = std::min(m_size, m_text.size() - m_given);
        m_given += size;
        return {m_text.data() + m_given - size, size};
    }
    std::uint64_t Left() override { return m_text.size() - m_given; }

  private:
    std::string m_text;
    std::size_t m_size;
    std::size_t m_given = 0;
};

std::FILE* FileOf(const std::string& bytes) {
    std::FILE* const file = std::tmpfile();
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::rewind(file);
    return file;
}

TEST(RecordWriter, SpellsEachBlockInTheMachinesOrder) {
    RecordWriter writer;
    writer.Bool(true);
    writer.Bool(false);
    writer.Byte(0xFE);
    writer.Int(-2);
    writer.Unsigned(0x01020304u);
    writer.Double(1.0);
    EXPECT_EQ(BytesOf(writer), std::string("\x01\x00\xFE"
                                           "\xFE\xFF\xFF\xFF"
                                           "\x04\x03\x02\x01"
                                           "\x00\x00\x00\x00\x00\x00\xF0\x3F",
                                           19));
}

TEST(RecordWriter, WritesAStringAsLengthAndBytesWithoutTerminator) {
    RecordWriter writer;
    writer.String("ab");
    writer.String("");
    EXPECT_EQ(BytesOf(writer), std::string("\x02\0\0\0ab\0\0\0\0", 10));
}

TEST(RecordWriter, GrowsPastItsFirstMemory) {
    RecordWriter writer;
    for (int i = 0; i < 10000; ++i)
        writer.Int(i);
    RecordReader reader(writer.Bytes());
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(reader.Int(), i);
    EXPECT_FALSE(reader.AtEnd());
}

TEST(RecordWriter, TruncateTakesBackTheLastBytes) {
    RecordWriter writer;
    writer.Byte('a');
    writer.String("gone");
    writer.Truncate(1);
    writer.Byte('b');
    EXPECT_EQ(BytesOf(writer), "ab");
}

TEST(RecordWriter, ReleaseLeavesItEmptyAndUsable) {
    RecordWriter writer;
    writer.Int(7);
    writer.Release();
    EXPECT_EQ(writer.Size(), 0u);
    writer.Byte('x');
    EXPECT_EQ(BytesOf(writer), "x");
}

TEST(RecordReader, AnyByteButZeroIsTrue) {
    const std::string bytes("\x02\x00\xFF", 3);
    RecordReader reader(bytes);
    bool value = false;
    reader.Bool(value);
    EXPECT_TRUE(value);
    reader.Bool(value);
    EXPECT_FALSE(value);
    reader.Bool(value);
    EXPECT_TRUE(value);
}

TEST(RecordReader, TheEndShowsOnlyWhenAReadComesShort) {
    const std::string bytes("\x05\0\0\0", 4);
    RecordReader reader(bytes);
    EXPECT_EQ(reader.Int(), 5);
    EXPECT_FALSE(reader.AtEnd());
    EXPECT_EQ(reader.Int(), 0);
    EXPECT_TRUE(reader.AtEnd());
}

TEST(RecordReader, AShortReadGivesZeroForNumbersAndLeavesBytesAndBools) {
    const std::string bytes("\x01\x02\x03", 3);
    RecordReader ints(bytes), doubles(bytes), nothing(std::span<const char>{});
    EXPECT_EQ(ints.Int(), 0);
    EXPECT_EQ(doubles.Double(), 0.0);
    unsigned char byte = 9;
    bool flag = true;
    nothing.Byte(byte);
    nothing.Bool(flag);
    EXPECT_EQ(byte, 9);
    EXPECT_TRUE(flag);
}

TEST(RecordReader, AStringEndsAtItsFirstZeroByte) {
    const std::string bytes("\x05\0\0\0ab\0cdZ", 10);
    RecordReader reader(bytes);
    std::string text;
    reader.String(text);
    EXPECT_EQ(text, "ab");
    unsigned char next = 0;
    reader.Byte(next);
    EXPECT_EQ(next, 'Z') << "all five bytes are stepped over";
}

TEST(RecordReader, AStringAtTheEndIsEmpty) {
    RecordReader reader(std::span<const char>{});
    std::string text = "before";
    reader.String(text);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(reader.AtEnd());
}

TEST(RecordReader, AStringOfLengthZeroIsEmptyAndNotTheEnd) {
    const std::string bytes(4, '\0');
    RecordReader reader(bytes);
    std::string text = "before";
    reader.String(text);
    EXPECT_EQ(text, "");
    EXPECT_FALSE(reader.AtEnd());
}

TEST(RecordReader, ALengthBeyondTheSourceGivesAnEmptyStringAndBreaksOff) {
    const std::string bytes("\xFF\xFF\xFF\x7F"
                            "abc",
                            7);
    RecordReader reader(bytes);
    std::string text = "before";
    reader.String(text);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(reader.AtEnd());
    unsigned char next = 1;
    reader.Byte(next);
    EXPECT_EQ(next, 1) << "nothing more is read";
}

TEST(RecordReader, ANegativeLengthGivesAnEmptyString) {
    const std::string bytes("\xFF\xFF\xFF\xFF"
                            "abc",
                            7);
    RecordReader reader(bytes);
    std::string text = "before";
    reader.String(text);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(reader.AtEnd());
}

TEST(RecordReader, ACountThatTheSourceCannotHoldIsZero) {
    const std::string enough = std::string("\x02\0\0\0", 4) + std::string(16, 'x');
    const std::string tooFew = std::string("\x02\0\0\0", 4) + std::string(15, 'x');
    RecordReader good(enough), bad(tooFew);
    EXPECT_EQ(good.Count(8), 2u);
    EXPECT_FALSE(good.AtEnd());
    EXPECT_EQ(bad.Count(8), 0u);
    EXPECT_TRUE(bad.AtEnd());
}

TEST(RecordReader, ReadsAcrossThePiecesOfItsSource) {
    RecordWriter writer;
    writer.Int(1234567);
    writer.Double(-2.5);
    writer.String("across the pieces");
    for (std::size_t size = 1; size < 12; ++size) {
        Pieces source(BytesOf(writer), size);
        RecordReader reader({}, &source);
        std::string text;
        EXPECT_EQ(reader.Int(), 1234567);
        EXPECT_EQ(reader.Double(), -2.5);
        reader.String(text);
        EXPECT_EQ(text, "across the pieces") << "pieces of " << size;
        EXPECT_EQ(reader.Taken(), 33u);
        EXPECT_FALSE(reader.AtEnd());
        EXPECT_EQ(reader.Int(), 0);
        EXPECT_TRUE(reader.AtEnd());
    }
}

TEST(RecordReader, GivesBytesInPlaceOnlyWhenTheyLieInOnePiece) {
    const std::string bytes = "abcdef";
    RecordReader reader(bytes);
    EXPECT_EQ(reader.InPlace(7), nullptr);
    EXPECT_EQ(reader.InPlace(4), bytes.data());
    EXPECT_EQ(reader.Left(), 2u);
}

TEST(RecordReader, LeavesAStreamBehindTheBytesThatItTook) {
    RecordWriter writer;
    writer.Int(3);
    writer.String("xyz");
    std::FILE* const file = FileOf(BytesOf(writer) + "rest");
    RecordReader reader(file);
    std::string text;
    EXPECT_EQ(reader.Int(), 3);
    reader.String(text);
    EXPECT_EQ(text, "xyz");
    EXPECT_EQ(std::ftell(file), 11);
    EXPECT_EQ(std::fgetc(file), 'r');
    std::fclose(file);
}

TEST(RecordReader, TakesTheEndFromItsStream) {
    std::FILE* const file = FileOf("ab");
    RecordReader reader(file);
    EXPECT_FALSE(reader.AtEnd());
    EXPECT_EQ(reader.Int(), 0);
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_TRUE(std::feof(file));
    std::fclose(file);
}

TEST(RecordReader, ChecksACountAgainstWhatTheStreamStillHolds) {
    std::FILE* const file = FileOf(std::string("\xFF\xFF\xFF\x0F", 4) + "abcd");
    RecordReader reader(file);
    EXPECT_EQ(reader.Count(25), 0u);
    EXPECT_TRUE(reader.AtEnd());
    std::fclose(file);
}

} // namespace
