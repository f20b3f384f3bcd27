#pragma once

#include <string>
#include <string_view>

#include <QString>

/// Texts between the core's UTF-8 and the windows.

inline QString qszoveg(std::string_view szoveg) {
    return QString::fromUtf8(szoveg.data(), static_cast<qsizetype>(szoveg.size()));
}
inline std::string szoveg(const QString& qszoveg) {
    return qszoveg.toStdString();
}
