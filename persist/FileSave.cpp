// A part of persist/mdlFile.h.
#include <filesystem>

#include "base/MsgBox.h"
#include "base/ReadFile.h"
#include "base/Version.h"
#include "core/HistoryLog.h"
#include "persist/AppFileLayout.h"
#include "persist/ByteIO.h"
#include "persist/FileReplace.h"
#include "persist/mdlFile.h"

namespace {

bool Same_File(const std::string& a, const std::string& b) {
    std::error_code ec;
    return a == b || std::filesystem::equivalent(a, b, ec);
}

// Keeps the bytes of an unread file beside it before they are written over.
// A file that is gone or no regular file has no bytes to keep.
bool Backup_Unread(const std::string& path) {
    if (UnreadFile.empty() || !Same_File(path, UnreadFile) || !File_Readable(path)) return true;
    const std::string backup = path + ".bak";
    if (!File_CopyOver(path, backup)) return false;
    History_Append(History_Path(), "The file " + path + " could not be read; its former bytes were kept as " + backup);
    return true;
}

}  // namespace

std::string File_VersionText() {
    return "Ver." + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

std::string File_Bytes() {
    ByteWriter out;
    out.Text(FixedText<kVersionBytes>(File_VersionText()));
    Io_CurrentFile(out);
    return out.Bytes();
}

bool File_Save(const std::string& path) {
    if (Backup_Unread(path) && File_Replace(path, File_Bytes())) {
        if (Same_File(path, UnreadFile)) UnreadFile.clear();
        return true;
    }
    MsgBox("File write failed.", "Save", MsgIcon::Exclamation);
    return false;
}
