// SPDX-License-Identifier: MIT
// The command line.

#include <gtest/gtest.h>

#include "monitor/recording/Options.h"

namespace kavlix::recording {
namespace {

TEST(Options, ReadsEveryOptionInBothForms) {
    const Options apart = ParseOptions({"a.csv", "--shot", "out.png", "--seconds", "2.5", "--size", "800x500",
                                        "--style", "bar", "--page", "graph", "b.csv"});
    const Options joined = ParseOptions({"a.csv", "--shot=out.png", "--seconds=2.5", "--size=800x500",
                                         "--style=bar", "--page=graph", "b.csv"});
    for (const Options& options : {apart, joined}) {
        EXPECT_EQ(options.error, "");
        EXPECT_EQ(options.files, (std::vector<std::string>{"a.csv", "b.csv"}));
        EXPECT_EQ(options.shot, "out.png");
        EXPECT_EQ(options.seconds, 2.5);
        EXPECT_TRUE(options.size && options.size->width == 800 && options.size->height == 500);
        EXPECT_EQ(options.style, ViewStyle::Bar);
        EXPECT_EQ(options.page, 0u);
        EXPECT_FALSE(options.check || options.help);
    }
    EXPECT_EQ(ParseOptions({"--style", "bar", "--style=twoaxis"}).style, ViewStyle::TwoAxis);
    EXPECT_TRUE(ParseOptions({"-h"}).help);
    EXPECT_TRUE(ParseOptions({"--check", "a.csv"}).check);
}

TEST(Options, SaysWhatIsWrong) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{}, ""},
        {{"--shots=x"}, "expected one of the options of --help, found \"--shots=x\""},
        {{"--shot"}, "--shot: expected a file name that ends in .png, .bmp or .emf, found nothing"},
        {{"--shot", "a.jpg"},
         "--shot: expected a file name that ends in .png, .bmp or .emf, found \"a.jpg\""},
        {{"--shot", "a.EMF"}, ""},
        {{"--style", "pie"}, "--style: expected line, bar or twoaxis, found \"pie\""},
        {{"--page", "Graph"}, "--page: expected graph, scroll, pie, chart or multi, found \"Graph\""},
        {{"--help=yes"}, "--help: expected no value"},
        {{"--check"}, "--check: expected at least one file"},
        {{"--check", "a.csv", "--shot", "x.png"}, "--check and --shot: expected only one of them"},
    };
    for (const auto& [arguments, error] : cases)
        EXPECT_EQ(ParseOptions(arguments).error, error);
    for (const char* size : {"", "800", "800x", "800x500x3", "800x99", "10001x500", "-800x500", "8e2x500"})
        EXPECT_NE(ParseOptions({"--size", size}).error, "") << size;
    for (const char* seconds : {"", "0", "-1", "nan", "1e999", "2000000", "5s"})
        EXPECT_NE(ParseOptions({"--seconds", seconds}).error, "") << seconds;
}

} // namespace
} // namespace kavlix::recording
