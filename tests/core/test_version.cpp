// SPDX-License-Identifier: BSD-3-Clause
#include <cstring>
#include <string>

#include "qsp_test.h"

TEST(GetLibVersion, RecordFieldsAndTexts)
{
    const QspVersionRecord* v = qspsGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v, qspsGetLibVersion());
    EXPECT_EQ(v->majorVersion, 2026);
    EXPECT_EQ(v->minorVersion, 0);
    EXPECT_EQ(v->updateNumber, 0);
    EXPECT_EQ(v->buildNumber, 0xa7ad6ebcu);
    const char cpu[4] = {'y', '8', 0, 0};
    EXPECT_EQ(std::memcmp(v->cpuCode, cpu, 4), 0);
    EXPECT_STREQ(v->libraryName, "qspSP SSE4.2 (y8)");
    EXPECT_STREQ(v->versionText, "2026.0.0 (r0xa7ad6ebc)");
    EXPECT_STREQ(v->buildDateText, "Mar 27 2026");
    EXPECT_EQ(v->recordLevel, 12);
}

TEST(GetLibVersion, VersionTextIsBuiltFromTheNumbers)
{
    const QspVersionRecord* v = qspsGetLibVersion();
    char expected[64];
    std::snprintf(expected, sizeof expected, "%d.%d.%d (r0x%x)", v->majorVersion, v->minorVersion,
                  v->updateNumber, v->buildNumber);
    EXPECT_STREQ(v->versionText, expected);
}

TEST(GetLibVersion, FieldOrderAndLayout)
{
    EXPECT_EQ(offsetof(QspVersionRecord, majorVersion), 0u);
    EXPECT_EQ(offsetof(QspVersionRecord, minorVersion), 4u);
    EXPECT_EQ(offsetof(QspVersionRecord, updateNumber), 8u);
    EXPECT_EQ(offsetof(QspVersionRecord, buildNumber), 12u);
    EXPECT_EQ(offsetof(QspVersionRecord, cpuCode), 16u);
    EXPECT_EQ(offsetof(QspVersionRecord, libraryName), 24u);
    EXPECT_EQ(offsetof(QspVersionRecord, versionText), 32u);
    EXPECT_EQ(offsetof(QspVersionRecord, buildDateText), 40u);
    EXPECT_EQ(offsetof(QspVersionRecord, recordLevel), 48u);
}

// The header's version macros name the library that is loaded.
TEST(GetLibVersion, HeaderMacrosMatchTheLoadedLibrary)
{
    const QspVersionRecord* v = qspsGetLibVersion();
    EXPECT_EQ(QSP_VERSION_MAJOR, v->majorVersion);
    EXPECT_EQ(QSP_VERSION_MINOR, v->minorVersion);
    EXPECT_EQ(QSP_VERSION_UPDATE, v->updateNumber);
    EXPECT_EQ(QSP_VERSION, v->majorVersion * 10000 + v->minorVersion * 100 + v->updateNumber);
    char numbers[32];
    std::snprintf(numbers, sizeof numbers, "%d.%d.%d", v->majorVersion, v->minorVersion, v->updateNumber);
    EXPECT_STREQ(QSP_VERSION_STRING, numbers);
    EXPECT_EQ(std::string(v->versionText).rfind(std::string(QSP_VERSION_STRING) + " (r0x", 0), 0u);
    static_assert(QSP_VERSION == 20260000, "2026.0.0");
}
