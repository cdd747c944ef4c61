#include <gtest/gtest.h>
#include <stdexcept>

#include "platform/win/MessageBox.h"
#include "support/LogLines.h"

namespace {

/// A headless host that stands in for the test's length.
class Installed : public zv::HeadlessMessageHost {
  public:
    Installed() : m_before(zv::SetMessageHost(this)) {}
    ~Installed() override { zv::SetMessageHost(m_before); }
    [[noreturn]] void ExitProcess(int code) override {
        throw std::runtime_error("exit " + std::to_string(code));
    }

  private:
    zv::MessageHost* m_before;
};

} // namespace

TEST(MessageBox, RecordsTextTitleStyleAndAnswer) {
    Installed host;
    EXPECT_EQ(AfxMessageBox("Can't read", MB_ICONEXCLAMATION), IDOK);
    EXPECT_EQ(MessageBoxA("Not found", "Open", MB_ICONINFORMATION), IDOK);
    ASSERT_EQ(host.GetShown().size(), 2u);
    EXPECT_EQ(host.GetShown()[0].text, "Can't read");
    EXPECT_EQ(host.GetShown()[0].title, "ZvDisp");
    EXPECT_EQ(host.GetShown()[0].style, MB_ICONEXCLAMATION);
    EXPECT_EQ(host.GetShown()[1].title, "Open");
    EXPECT_EQ(host.GetShown()[1].answer, IDOK);
}

TEST(MessageBox, AnswersAQuestionNoWithoutScript) {
    Installed host;
    EXPECT_EQ(AfxMessageBox("Go on?", MB_YESNO), IDNO);
    EXPECT_EQ(AfxMessageBox("Go on?", MB_YESNO | MB_ICONEXCLAMATION), IDNO);
}

TEST(MessageBox, AnswersQuestionsFromItsScriptInOrder) {
    Installed host;
    host.Script({IDYES, IDNO});
    host.Script({IDYES});
    EXPECT_EQ(AfxMessageBox("1?", MB_YESNO), IDYES);
    EXPECT_EQ(AfxMessageBox("told"), IDOK) << "what is no question takes no answer";
    EXPECT_EQ(AfxMessageBox("2?", MB_YESNO), IDNO);
    EXPECT_EQ(AfxMessageBox("3?", MB_YESNO), IDYES);
    EXPECT_EQ(AfxMessageBox("4?", MB_YESNO), IDNO);
}

TEST(MessageBox, ClearForgetsTextsAndAnswers) {
    Installed host;
    host.Script({IDYES});
    AfxMessageBox("told");
    host.Clear();
    EXPECT_TRUE(host.GetShown().empty());
    EXPECT_EQ(AfxMessageBox("Go on?", MB_YESNO), IDNO);
}

TEST(MessageBox, PutsEveryTextInTheLog) {
    Installed host;
    const zv::test::LogLines log;
    AfxMessageBox("Go on?", MB_YESNO);
    const std::vector<zv::test::LogLines::Line> expected = {{"Go on?", 101, false}};
    EXPECT_EQ(log.Get(), expected);
}

TEST(MessageBox, ANullHostPutsTheDefaultBack) {
    zv::MessageHost* const standard = &zv::GetMessageHost();
    Installed host;
    EXPECT_EQ(&zv::GetMessageHost(), &host);
    EXPECT_EQ(zv::SetMessageHost(nullptr), &host);
    EXPECT_EQ(&zv::GetMessageHost(), standard);
}

TEST(MessageBox, TheHostEndsTheProcess) {
    Installed host;
    EXPECT_THROW(zv::GetMessageHost().ExitProcess(3), std::runtime_error);
}

TEST(MessageBoxDeathTest, TheDefaultHostReallyEndsTheProcess) {
    EXPECT_EXIT(zv::GetMessageHost().ExitProcess(3), testing::ExitedWithCode(3), "");
}
