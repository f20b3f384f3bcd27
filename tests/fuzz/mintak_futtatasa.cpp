// Runs the fuzzer's corpus as an ordinary test: each file named goes through the target once.

#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* adat, std::size_t hossz);

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::ifstream be(argv[i], std::ios::binary);
        const std::vector<char> tartalom{std::istreambuf_iterator<char>(be), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(tartalom.data()), tartalom.size());
    }
    std::cout << argc - 1 << " minta\n";
    return argc > 1 ? 0 : 1;
}
