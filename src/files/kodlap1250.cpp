#include "files/kodlap1250.h"

#include <iconv.h>

#include "tables/szoveg.h"

namespace {

class TAtalakito {
public:
    TAtalakito(const char* hova, const char* honnan) : leiro_(iconv_open(hova, honnan)) {}
    ~TAtalakito() {
        if (ervenyes()) iconv_close(leiro_);
    }
    TAtalakito(const TAtalakito&) = delete;
    TAtalakito& operator=(const TAtalakito&) = delete;

    /// One character; '?' if it has no counterpart.
    void egyKarakter(std::string_view karakter, std::string& ki) const {
        std::string be(karakter);
        char* beHely = be.data();
        std::size_t beHossz = be.size();
        char puffer[8];
        char* kiHely = puffer;
        std::size_t kiHossz = sizeof puffer;
        const bool sikerult = ervenyes() && iconv(leiro_, &beHely, &beHossz, &kiHely, &kiHossz) == 0;
        if (sikerult)
            ki.append(puffer, sizeof puffer - kiHossz);
        else
            ki += '?';
        if (!sikerult && ervenyes()) iconv(leiro_, nullptr, nullptr, nullptr, nullptr);
    }

private:
    bool ervenyes() const { return leiro_ != iconv_t(-1); }
    iconv_t leiro_;
};

}  // namespace

std::string kodlapra(std::string_view utf8) {
    const TAtalakito atalakito("CP1250", "UTF-8");
    std::string ki;
    while (!utf8.empty()) {
        const std::size_t hossz = karakterHossz(utf8);
        atalakito.egyKarakter(utf8.substr(0, hossz), ki);
        utf8.remove_prefix(hossz);
    }
    return ki;
}

std::string kodlaprol(std::string_view kodlap1250) {
    const TAtalakito atalakito("UTF-8", "CP1250");
    std::string ki;
    for (std::size_t i = 0; i < kodlap1250.size(); ++i) atalakito.egyKarakter(kodlap1250.substr(i, 1), ki);
    return ki;
}
