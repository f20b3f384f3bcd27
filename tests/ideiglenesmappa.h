#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// A folder of a test's own, gone with it.
class TIdeiglenesMappa {
public:
    TIdeiglenesMappa()
        : mappa_(std::filesystem::temp_directory_path() /
                 ("korvend-teszt-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(mappa_);
    }
    ~TIdeiglenesMappa() { std::filesystem::remove_all(mappa_); }
    TIdeiglenesMappa(const TIdeiglenesMappa&) = delete;
    TIdeiglenesMappa& operator=(const TIdeiglenesMappa&) = delete;

    const std::filesystem::path& ut() const { return mappa_; }
    /// @param fajl  name in UTF-8
    std::filesystem::path operator/(std::string_view fajl) const { return mappa_ / ut(fajl); }
    std::string fajl(const std::string& nev) const { return nevBol(mappa_ / ut(nev)); }
    void irj(const std::string& nev, const std::string& tartalom) const {
        std::ofstream(mappa_ / ut(nev), std::ios::binary) << tartalom;
    }
    std::string olvasd(const std::string& nev) const {
        std::ifstream be(mappa_ / ut(nev), std::ios::binary);
        return {std::istreambuf_iterator<char>(be), {}};
    }
    /// All that lies in the folder, hidden files too.
    std::vector<std::string> tartalma() const {
        std::vector<std::string> nevek;
        for (const auto& elem : std::filesystem::directory_iterator(mappa_))
            nevek.push_back(nevBol(elem.path().filename()));
        return nevek;
    }

private:
    /// Names are UTF-8 whatever the system's own are.
    static std::filesystem::path ut(std::string_view nev) { return std::u8string(nev.begin(), nev.end()); }
    static std::string nevBol(const std::filesystem::path& ut) {
        const std::u8string nev = ut.generic_u8string();
        return {nev.begin(), nev.end()};
    }

    std::filesystem::path mappa_;
};

/// The current directory for a while.
class TMunkaMappa {
public:
    explicit TMunkaMappa(const std::filesystem::path& mappa) : regi_(std::filesystem::current_path()) {
        std::filesystem::current_path(mappa);
    }
    ~TMunkaMappa() { std::filesystem::current_path(regi_); }
    TMunkaMappa(const TMunkaMappa&) = delete;
    TMunkaMappa& operator=(const TMunkaMappa&) = delete;

private:
    std::filesystem::path regi_;
};
