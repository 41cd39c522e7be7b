// SPDX-License-Identifier: MIT
// bench [ROW...]: prints the rows of the named families as lines of JSON; of all families without a name.

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
    {"scroll_live", &bench::ScrollLive},
    {"graph_paint_1000", [] { bench::GraphPaint(1000); }},
    {"graph_paint_100000", [] { bench::GraphPaint(100000); }},
    {"graph_paint_1000000", [] { bench::GraphPaint(1000000); }},
    {"graph_copy_1000", [] { bench::GraphCopy(1000); }},
    {"graph_copy_100000", [] { bench::GraphCopy(100000); }},
    {"graph_copy_1000000", [] { bench::GraphCopy(1000000); }},
    {"graph_window", &bench::GraphWindow},
    {"graph_far", &bench::GraphFar},
    {"graph_bars", &bench::GraphBars},
    {"graph_append", &bench::GraphAppend},
    {"graph_steady", &bench::GraphSteady},
    {"scroll_paint_1000", [] { bench::ScrollPaint(1000); }},
    {"scroll_paint_100000", [] { bench::ScrollPaint(100000); }},
    {"scroll_paint_1000000", [] { bench::ScrollPaint(1000000); }},
    {"scroll_window", &bench::ScrollWindow},
    {"scroll_back", &bench::ScrollBack},
    {"scroll_axis", &bench::ScrollAxis},
    {"chart_paint_1000", [] { bench::ChartPaint(1000); }},
    {"chart_paint_100000", [] { bench::ChartPaint(100000); }},
    {"chart_paint_1000000", [] { bench::ChartPaint(1000000); }},
    {"multi_paint", &bench::MultiPaint},
    {"chart_lines_100000", [] { bench::ChartLines(100000); }},
    {"chart_lines_1000000", [] { bench::ChartLines(1000000); }},
    {"chart_random", [] { bench::ChartRandom(false); }},
    {"chart_random_points", [] { bench::ChartRandom(true); }},
    {"chart_time_1000", [] { bench::ChartTime(1000); }},
    {"chart_time_100000", [] { bench::ChartTime(100000); }},
    {"chart_time_1000000", [] { bench::ChartTime(1000000); }},
    {"chart_pan_1000", [] { bench::ChartPan(1000); }},
    {"chart_pan_100000", [] { bench::ChartPan(100000); }},
    {"chart_pan", [] { bench::ChartPan(1000000); }},
    {"chart_zoom", [] { bench::ChartZoom(1000000); }},
    {"chart_parts_1000", [] { bench::ChartParts(1000); }},
    {"chart_parts_100000", [] { bench::ChartParts(100000); }},
    {"chart_parts_1000000", [] { bench::ChartParts(1000000); }},
    {"chart_against_graph_1000", [] { bench::ChartAgainstGraph(1000, false); }},
    {"chart_against_graph_100000", [] { bench::ChartAgainstGraph(100000, false); }},
    {"chart_against_graph_1000000", [] { bench::ChartAgainstGraph(1000000, false); }},
    {"chart_uneven_1000", [] { bench::ChartAgainstGraph(1000, true); }},
    {"chart_uneven_100000", [] { bench::ChartAgainstGraph(100000, true); }},
    {"chart_uneven_1000000", [] { bench::ChartAgainstGraph(1000000, true); }},
    {"chart_ten_million", [] { bench::ChartTenMillion(false); }},
    {"chart_ten_million_uneven", [] { bench::ChartTenMillion(true); }},
    {"chart_append", &bench::ChartAppend},
    {"chart_post", &bench::ChartPost},
    {"chart_late", &bench::ChartLate},
    {"chart_wall", &bench::ChartWall},
    {"chart_save", &bench::ChartSave},
    {"chart_store", &bench::ChartStore},
    {"chart_styles", &bench::ChartStyles},
    {"graph_growth", &bench::GraphGrowth},
    {"graph_day", &bench::GraphDay},
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
