// SPDX-License-Identifier: MIT
// Calls the fuzz target with random recordings where there is no libFuzzer.
//
// The first argument is the number of recordings, by default 20,000. They are the same in every run.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::string_view kParts[] = {"t,a,b\n",
                                       "t;a\n",
                                       "timestamp,value\n",
                                       "2013-12-02 21:15:00",
                                       "2013-12-02T21:15:00.5Z",
                                       "1386018900",
                                       "-1",
                                       "0",
                                       "12abc",
                                       "1e999",
                                       "1e300",
                                       "-1e300",
                                       "5e-324",
                                       "0.1",
                                       "NaN",
                                       ",",
                                       ",",
                                       ",",
                                       ";",
                                       "\t",
                                       "\n",
                                       "\n",
                                       "\n",
                                       "\r\n",
                                       "\r",
                                       "\"",
                                       "\"\"",
                                       "\"x\ny\"",
                                       "\xEF\xBB\xBF",
                                       "\xFF\xFE",
                                       "\xC3\xA4",
                                       "\xB0",
                                       " ",
                                       "--size=",
                                       "800x500"};

std::string MakeInput(std::mt19937& random) {
    std::string input = {static_cast<char>(random() % 256), static_cast<char>(random() % 256)};
    if (random() % 2 == 0) {
        input += "t,a,b\n";
    }
    for (unsigned count = random() % 120; count > 0; --count) {
        if (random() % 3 == 0) {
            input += std::to_string(random() % 100) + ',' + std::to_string(random() % 1000) + '\n';
        } else if (random() % 20 == 0) {
            input += static_cast<char>(random() % 256);
        } else {
            input += kParts[random() % std::size(kParts)];
        }
    }
    return input;
}

} // namespace

int main(int argc, char** argv) {
    const long rounds = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 20'000;
    std::mt19937 random(8);
    for (long i = 0; i < rounds; ++i) {
        const std::string input = MakeInput(random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    }
    std::printf("%ld inputs read\n", rounds);
    return 0;
}
