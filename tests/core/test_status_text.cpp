// SPDX-License-Identifier: BSD-3-Clause
// qspStatusText, the header's status-to-text function: every status value
// that qspdefs.h names (read from the header itself, so that a status added
// later is covered) gives a text that starts with its name; other values
// say whether they are errors or warnings.
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "qsp_test.h"

TEST(StatusText, EveryNamedStatusGivesItsName)
{
    std::ifstream header(QSP_SOURCE_DIR "/include/qspdefs.h");
    ASSERT_TRUE(header) << "cannot read qspdefs.h";
    const std::regex entry(R"(^\s*(qspSts\w+)\s*=\s*(-?\d+))");
    std::map<std::string, int> named;
    for (std::string line; std::getline(header, line);) {
        std::smatch m;
        if (std::regex_search(line, m, entry)) named[m[1]] = std::stoi(m[2]);
    }
    ASSERT_GT(named.size(), 40u);
    std::set<std::string> texts;
    for (const auto& [name, value] : named) {
        const std::string text = qspStatusText(value);
        EXPECT_EQ(text.rfind(name + ": ", 0), 0u) << value << " gives \"" << text << "\"";
        EXPECT_GT(text.size(), name.size() + 8) << name << " has no description";
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), named.size()) << "two values share a text";
}

TEST(StatusText, ValuesWithoutANameSayWhatTheyAre)
{
    EXPECT_STREQ(qspStatusText(-1), "unknown error");
    EXPECT_STREQ(qspStatusText(-9999), "unknown error");
    EXPECT_STREQ(qspStatusText(-2147483647 - 1), "unknown error");
    EXPECT_STREQ(qspStatusText(4), "unknown warning");
    EXPECT_STREQ(qspStatusText(2147483647), "unknown warning");
    EXPECT_STREQ(qspStatusText(qspStsOk), "qspStsOk: no error");
}
