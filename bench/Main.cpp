// bench [ROW...]: prints the rows of the named families, of all without a name, as lines of JSON.

#include "bench/Common.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

class BenchApp : public CWinApp {
public:
    BenchApp() : CWinApp("Kavlix bench") {}
};

BenchApp theApp;

constexpr struct {
    const char* name;
    void (*run)();
} kFamilies[] = {
    {"scroll_replay", &bench::ScrollReplay},
};

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE)) {
        std::fputs("bench: the class library did not start\n", stderr);
        return 1;
    }
    for (int i = 1; i < argc; ++i) {
        const auto known = [&](const auto& family) { return std::string(family.name) == argv[i]; };
        if (std::none_of(std::begin(kFamilies), std::end(kFamilies), known)) {
            std::fprintf(stderr, "bench: no rows are called %s; there are:\n", argv[i]);
            for (const auto& family : kFamilies)
                std::fprintf(stderr, "  %s\n", family.name);
            return 1;
        }
    }
    for (const auto& family : kFamilies) {
        const auto named = [&](const char* name) { return std::string(family.name) == name; };
        if (argc == 1 || std::any_of(argv + 1, argv + argc, named))
            family.run();
    }
    return 0;
}
