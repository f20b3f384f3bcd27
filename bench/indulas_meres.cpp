// Starts two programs by turns and compares them: wall clock and processor time from start to end, private
// memory. Usage: indulas_meres NAME BASE PROGRAM [ROUNDS]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct TMert {
    std::vector<double> fali, gep;  ///< milliseconds
};

double ezred(const timeval& t) {
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
}

void futtat(const char* program, TMert& mert) {
    const auto kezdet = std::chrono::steady_clock::now();
    const pid_t gyerek = fork();
    if (gyerek == 0) {
        execl(program, program, nullptr);
        _exit(127);
    }
    int allapot = 0;
    rusage hasznalat{};
    wait4(gyerek, &allapot, 0, &hasznalat);
    const std::chrono::duration<double, std::milli> ido = std::chrono::steady_clock::now() - kezdet;
    if (!WIFEXITED(allapot) || WEXITSTATUS(allapot) != 0) {
        std::fprintf(stderr, "%s failed\n", program);
        std::exit(1);
    }
    mert.fali.push_back(ido.count());
    mert.gep.push_back(ezred(hasznalat.ru_utime) + ezred(hasznalat.ru_stime));
}

/// In kB, as the program itself tells it at its first picture.
long memoria(const char* program) {
    FILE* cso = popen(("KORVEND_MEMORIA=1 '" + std::string(program) + "'").c_str(), "r");
    long ertek = 0;
    if (cso == nullptr || std::fscanf(cso, "%ld", &ertek) != 1) ertek = 0;
    if (cso != nullptr) pclose(cso);
    return ertek;
}

double kozep(std::vector<double> ertekek) {
    std::sort(ertekek.begin(), ertekek.end());
    return ertekek[ertekek.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) return 2;
    const int korok = argc > 4 ? std::atoi(argv[4]) : 40;
    const std::array programok{argv[2], argv[3]};
    std::array<TMert, 2> mert;
    for (const char* program : programok) {
        TMert bemelegites;
        futtat(program, bemelegites);
    }
    for (int i = 0; i < korok; ++i)
        for (std::size_t p = 0; p < programok.size(); ++p) futtat(programok[p], mert[p]);
    const auto sor = [&](const char* mi, double alap, double korvend) {
        std::printf("%-10s %-9s window %6.1f ms, korvend %6.1f ms, ratio %.2f\n", argv[1], mi, alap, korvend,
                    korvend / alap);
    };
    sor("wall", kozep(mert[0].fali), kozep(mert[1].fali));
    sor("processor", kozep(mert[0].gep), kozep(mert[1].gep));
    const long alap = memoria(programok[0]);
    const long korvend = memoria(programok[1]);
    std::printf("%-10s %-9s window %ld kB, korvend %ld kB, %.1f MB more\n", argv[1], "private", alap, korvend,
                static_cast<double>(korvend - alap) / 1024);
}
