#include "items/SymbolFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

#include "items/SymbolTable.h"
#include "items/ZvDispSymbols.h"
#include "persist/DrawingReader.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"
#include "platform/win/Files.h"
#include "platform/win/MessageBox.h"
#include "platform/zvcom/ZvUtRegistry.h"

namespace {

constexpr const char* kAllNumbers = "-1";
constexpr const char* kTemplateFolder = "\\Template\\";

/// What was loaded, so that no file is loaded twice, and whether the sequence has run.
struct Loaded {
    std::vector<std::string> files;
    bool sequenceRan = false;
    unsigned registry = 0; // generation that the two folders were read at
    std::string home, work;
};

Loaded& TheLoaded() {
    static Loaded loaded;
    return loaded;
}

bool IsOptional(const std::string& file) {
    return file.find("user.tab") != std::string::npos ||
           file.find("UserTitle.tab") != std::string::npos;
}

std::string WorkPath() {
    return CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                      true) +
           kTemplateFolder;
}

bool AskToReplace(int number) {
    const std::string text = "Same symbol number(" + zv::FormatInt(number) +
                             ") already found from the list.\nDo you want to replace existing one?"
                             "\nClick Yes to replace existing,\n click No if you want to Keep "
                             "existing one";
    return AfxMessageBox(text, MB_YESNO) == IDYES;
}

/// One block in the reading: freed unless it is stored.
struct Block {
    zv::SymbolItems items{new std::list<CZvDisplayItem*>};
    zv::SymbolItems variableTexts{new std::list<CZvDisplayItem*>};
    std::string description;
};

void Store(Block block, int number, const std::string& description) {
    CZvDispSymbolTable& table = CZvDispSymbolTable::Get();
    if (table.Has(number)) {
        if (!AskToReplace(number)) return;
        table.Delete(number);
    }
    const std::string& text = description.empty() ? block.description : description;
    table.Add(number, std::move(block.items), std::move(block.variableTexts),
              text.empty() ? std::nullopt : std::optional(text));
}

bool ReadBlock(std::istream& in, int number, const std::string& description) {
    Block block;
    CZvDispFileParam file;
    file.SetInFile(&in);
    file.SetSymbol(true);
    file.SetSymbolNum(number);
    if (!CZvDisplayItem::S_ReadDrawingFile(block.items.get(), block.variableTexts.get(), file,
                                           block.description))
        return false;
    Store(std::move(block), number, description);
    return true;
}

} // namespace

namespace zv {

std::string SymbolHomePath() {
    return CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetHomePath(), CZvUtRegistry::S_GetHomeKey(),
                                      true) +
           kTemplateFolder;
}

bool ReadSymbolBlocks(std::istream& in, const std::string& number, const std::string& description) {
    if (number != kAllNumbers) return ReadBlock(in, ParseInt(number), description);
    DrawingReader reader(in);
    while (!reader.Token().empty()) { // "SYMBOL"
        reader.Token();               // "#"
        if (!ReadBlock(in, ParseInt(reader.Token()), description)) return false;
    }
    return true;
}

void ForgetLoadedSymbolFiles() {
    TheLoaded() = {};
}

void LoadSymbolFilesOnce() {
    Loaded& loaded = TheLoaded();
    if (loaded.sequenceRan && loaded.registry == CZvUtRegistry::S_GetGeneration()) return;
    const std::string home = SymbolHomePath(), work = WorkPath();
    const bool moved = loaded.sequenceRan && (home != loaded.home || work != loaded.work);
    if (moved) CZvDispSymbols::S_ClearSymbolsMap();
    const bool stands = loaded.sequenceRan;
    loaded.sequenceRan = true;
    loaded.registry = CZvUtRegistry::S_GetGeneration();
    loaded.home = home;
    loaded.work = work;
    if (stands) return;
    for (const char* file : {"welsym.tab", "shotsym.tab", "master.sym"})
        CZvDispSymbols::S_LoadSymbols(file, kAllNumbers, false, "", false);
    CZvDispSymbols::S_LoadSymbols(CZvDispSymbols::S_GetGlobalSymFilePath(), kAllNumbers, true, "",
                                  false);
    CZvDispSymbols::S_LoadSymbols(WorkPath() + "UserTitle.tab", kAllNumbers, true, "", false);
}

} // namespace zv

std::string CZvDispSymbols::S_GetGlobalSymFilePath() {
    return WorkPath() + "user.tab";
}

bool CZvDispSymbols::S_LoadSymbols(std::string file, const std::string& number, bool fullPath,
                                   const std::string& description, bool warn) {
    const std::string path = fullPath ? file : zv::SymbolHomePath() + file;
    std::vector<std::string>& files = TheLoaded().files;
    if (std::find(files.begin(), files.end(), path) != files.end()) {
        if (warn) AfxMessageBox("Could not load the symbols\nSame file may already been loaded");
        return false;
    }
    if (number == kAllNumbers) files.push_back(path);
    std::ifstream in(zv::NativePath(path), std::ios::binary);
    if (!in || std::filesystem::is_directory(zv::NativePath(path))) {
        if (!IsOptional(file))
            AfxMessageBox("Could not open symbol file:\n" + path +
                          "\nSymbols will not display properly.");
        return false;
    }
    return zv::ReadSymbolBlocks(in, number, description);
}
