#include "core/DialogFolder.h"

#include <filesystem>
#include <system_error>

#include "core/DataFolders.h"
#include "core/Tables.h"

namespace fs = std::filesystem;

namespace {

bool IsFolder(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_directory(path, ec);
}

// The folder of a file named relative to the working folder too.
std::string FolderOf(const std::string& file) {
    if (file.empty()) return "";
    std::error_code ec;
    const fs::path absolute = fs::absolute(file, ec);
    return ec ? "" : absolute.parent_path().string();
}

}  // namespace

std::string Dialog_StartFolder(const DialogFolderHints& hints, DialogFor purpose) {
    if (const std::string folder = FolderOf(hints.documentFile); IsFolder(folder)) return folder;
    if (hints.documentFile.empty() && purpose == DialogFor::OpenApplication && IsFolder(hints.examples))
        return hints.examples;
    for (const std::string& folder : {hints.documents, hints.home})
        if (IsFolder(folder)) return folder;
    return "/";
}

DialogFolderHints DialogFolder_Hints(const std::string& documents, const std::string& home) {
    return {FileName, Examples_Folder(FolderHints_Read(), AppPath), documents, home};
}
