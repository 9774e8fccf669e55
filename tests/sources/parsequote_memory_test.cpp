// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// The memory that the largest bodies need while they are read. Each is read in a child
// process of its own, because the peak of a process never falls.

#include "sources/parsequote.h"

#include <gtest/gtest.h>

#include <ostream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace morrowleaf;

namespace {

constexpr qsizetype bodySize = qsizetype{4} << 20;
constexpr long budget = 32L * 1024; // KiB

long peakKiB() {
#ifdef __APPLE__
    constexpr long unit = 1024; // bytes
#else
    constexpr long unit = 1; // KiB
#endif
    rusage usage{};
    return ::getrusage(RUSAGE_SELF, &usage) == 0 ? usage.ru_maxrss / unit : 0;
}

struct Body {
    const char* name;
    QByteArray start, piece, end;
};

void PrintTo(const Body& body, std::ostream* out) {
    *out << body.name;
}

QByteArray filled(const Body& body) {
    QByteArray bytes = body.start;
    bytes.reserve(bodySize);
    while (bytes.size() + body.piece.size() + body.end.size() <= bodySize) {
        bytes += body.piece;
    }
    return bytes + body.end;
}

class ParseQuoteMemory : public testing::TestWithParam<Body> {};

// The child exits with status 0 if the body was read within the budget.
TEST_P(ParseQuoteMemory, StaysWithinItsBudget) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer has memory of its own";
#endif
    const QByteArray body = filled(GetParam());
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const long before = peakKiB();
        static_cast<void>(parseQuote(body, [](qsizetype count) { return count - 1; }));
        ::_exit(peakKiB() - before <= budget ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

INSTANTIATE_TEST_SUITE_P(Bodies, ParseQuoteMemory,
                         testing::Values(Body{"Numbers", "[0", ",0", "]"},
                                         Body{"Lists", "[[0]", ",[0]", "]"},
                                         Body{"EmptyObjects", "[{}", ",{}", "]"},
                                         Body{"EmptyObjectsWithin", R"({"data":[{})", ",{}", "]}"},
                                         Body{"Members", R"({"q":1)", R"(,"q":1)", "}"},
                                         Body{"Strings", R"({"q":"")", R"(,"q":"A")", "}"},
                                         Body{"Quotations", R"([{"q":"A"})", R"(,{"q":"A"})", "]"},
                                         Body{"OneString", R"({"q":")", "w", R"("})"},
                                         Body{"Escapes", R"({"q":")", R"(\u4e00)", R"("})"},
                                         Body{"OneName", R"({")", "w", R"(":1})"},
                                         Body{"OneNumber", R"({"q":"A","n":1)", "0", "}"},
                                         Body{"Open", "", "[", ""}, Body{"Letters", "", "w", ""},
                                         Body{"Marks", "a", "\xCC\x81", ""},
                                         Body{"Garbage", "", "\xFF", ""},
                                         Body{"Wide", QByteArray("[\0", 2),
                                              QByteArray("{\0}\0,\0", 6), QByteArray("0\0]\0", 4)}),
                         [](const auto& param) { return std::string(param.param.name); });

} // namespace
