#include "parancssor.h"

#ifdef _WIN32

#include <cstdio>
#include <fcntl.h>
#include <io.h>
// clang-format off
#include <windows.h>
#include <shellapi.h>  // needs the types of the one above
// clang-format on

namespace {

std::string utf8(const wchar_t* szoveg) {
    const int hossz = WideCharToMultiByte(CP_UTF8, 0, szoveg, -1, nullptr, 0, nullptr, nullptr);
    if (hossz <= 1) return {};
    std::string ki(static_cast<std::size_t>(hossz), '\0');
    WideCharToMultiByte(CP_UTF8, 0, szoveg, -1, ki.data(), hossz, nullptr, nullptr);
    ki.pop_back();  // the zero at its end
    return ki;
}

}  // namespace

std::vector<std::string> Argumentumok(int, char**) {
    int db = 0;
    wchar_t** szelesek = CommandLineToArgvW(GetCommandLineW(), &db);
    std::vector<std::string> argumentumok;
    for (int i = 1; i < db; ++i) argumentumok.push_back(utf8(szelesek[i]));
    LocalFree(static_cast<HLOCAL>(szelesek));
    return argumentumok;
}

void BinarisBeKimenet() {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

#else

std::vector<std::string> Argumentumok(int argc, char** argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

void BinarisBeKimenet() {}

#endif
