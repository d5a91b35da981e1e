#include "common/ui/Cp1252Text.h"

#include "base/Cp1252.h"

QString Cp1252_ToQString(std::string_view cp1252) { return QString::fromStdString(Cp1252_ToUtf8(cp1252)); }

std::string QString_ToCp1252(const QString& text) { return Utf8_ToCp1252(text.toStdString()); }
