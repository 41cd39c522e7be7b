// The command line.

#include <gtest/gtest.h>

#include "monitor/recording/Options.h"

namespace kavlix::recording {
namespace {

TEST(Options, ReadsEveryOptionInBothForms) {
    for (const bool joined : {false, true}) {
        std::vector<std::string> arguments = {"a.csv"};
        for (const auto& [name, value] :
             {std::pair("--shot", "out.png"), std::pair("--seconds", "2.5"), std::pair("--size", "800x500"),
              std::pair("--style", "bar"), std::pair("--page", "graph")})
            if (joined)
                arguments.push_back(std::string(name) + '=' + value);
            else
                arguments.insert(arguments.end(), {name, value});
        arguments.push_back("b.csv");
        const Options options = ParseOptions(arguments);
        EXPECT_EQ(options.error, "");
        EXPECT_EQ(options.files, (std::vector<std::string>{"a.csv", "b.csv"}));
        EXPECT_EQ(options.shot, "out.png");
        EXPECT_EQ(options.seconds, 2.5);
        ASSERT_TRUE(options.size.has_value());
        EXPECT_EQ(options.size->width, 800);
        EXPECT_EQ(options.size->height, 500);
        EXPECT_EQ(options.style, ViewStyle::Bar);
        EXPECT_EQ(options.page, 0u);
        EXPECT_FALSE(options.check || options.help);
    }
}

TEST(Options, FilesLastValuesAndFlags) {
    const Options none = ParseOptions({});
    EXPECT_TRUE(none.error.empty() && none.files.empty() && none.shot.empty());
    EXPECT_FALSE(none.seconds || none.size || none.style || none.page) << "live readings";
    EXPECT_EQ(ParseOptions({"--check", "--", "--odd.csv", "-x"}).files,
              (std::vector<std::string>{"--odd.csv", "-x"}));
    EXPECT_EQ(ParseOptions({"-"}).files, std::vector<std::string>{"-"});
    EXPECT_EQ(ParseOptions({""}).files, std::vector<std::string>{""});
    EXPECT_EQ(ParseOptions({"--style", "bar", "--style=twoaxis"}).style, ViewStyle::TwoAxis);
    EXPECT_EQ(ParseOptions({"--shot", "--check"}).shot, "--check")
        << "the value of an option is taken as it stands";
    EXPECT_EQ(ParseOptions({"--shot==x"}).shot, "=x");
    EXPECT_TRUE(ParseOptions({"--help"}).help);
    EXPECT_TRUE(ParseOptions({"-h", "--check"}).help);
    EXPECT_TRUE(ParseOptions({"--check", "a.csv"}).check);
    EXPECT_EQ(ParseOptions({"--check", "a.csv"}).error, "");
    for (const char* name :
         {"--shot", "--seconds", "--size", "--style", "--page", "--check", "--help", "twoaxis"})
        EXPECT_NE(HelpText().find(name), std::string::npos) << name;
}

TEST(Options, SaysWhatIsWrong) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"--frobnicate"}, "expected one of the options of --help, found \"--frobnicate\""},
        {{"--shots=x"}, "expected one of the options of --help, found \"--shots=x\""},
        {{"--shot"}, "--shot: expected a file name such as out.png, found nothing"},
        {{"--shot="}, "--shot: expected a file name such as out.png, found \"\""},
        {{"--style", "pie"}, "--style: expected line, bar or twoaxis, found \"pie\""},
        {{"--page", "Graph"}, "--page: expected graph, scroll, pie, chart or multi, found \"Graph\""},
        {{"--help=yes"}, "--help: expected no value"},
        {{"--check"}, "--check: expected at least one file"},
        {{"--check", "a.csv", "--shot", "x.png"}, "--check and --shot: expected only one of them"},
    };
    for (const auto& [arguments, error] : cases)
        EXPECT_EQ(ParseOptions(arguments).error, error);
    for (const char* size : {"", "800", "800x", "x500", "800x500x3", "800x99", "10001x500", "-800x500",
                             "8e2x500", "800 x500", "99999999999x500", "800,500"})
        EXPECT_NE(ParseOptions({"--size", size}).error, "") << size;
    for (const char* seconds : {"", "0", "-1", "x", "nan", "1e999", "2000000", "5s"})
        EXPECT_NE(ParseOptions({"--seconds", seconds}).error, "") << seconds;
}

} // namespace
} // namespace kavlix::recording
