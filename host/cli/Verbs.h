#pragma once

#include "cli/Options.h"
#include "data/MapDocument.h"

namespace zv::host {

/// The verbs of the command line. Each writes its result to standard output and throws on failure
/// (DataError, CZvUvException); nothing half-done is left then.
void Render(const RenderOptions& options);
void Info(const InfoOptions& options);
void Symbols(const SymbolsOptions& options);

/// Sends the log to standard error, or nowhere.
void SetLog(bool quiet);

/// Prints on standard error how many rows of each source gave nothing, or less
/// than asked, by reason.
void TellRejected(const LoadReport& report, bool quiet);

/// Puts a text out on standard output. Throws DataError when that cannot be written.
void PutOut(const std::string& text);

/// Opens a map with a progress bar.
std::unique_ptr<MapDocument> OpenMap(const std::string& path, const std::string& data,
                                     const std::string& scratch, bool quiet);

} // namespace zv::host
