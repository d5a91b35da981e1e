#include "base/MsgBox.h"
#include "base/Version.h"
#include "persist/AppFileLayout.h"
#include "persist/ByteIO.h"
#include "persist/FileReplace.h"
#include "persist/mdlFile.h"

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
    if (File_Replace(path, File_Bytes())) return true;
    MsgBox("File write failed.", "Save", MsgIcon::Exclamation);
    return false;
}
