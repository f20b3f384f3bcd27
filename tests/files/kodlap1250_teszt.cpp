#include <gtest/gtest.h>

#include "files/kodlap1250.h"

namespace {

TEST(Kodlap, AMagyarBetukEgyBajton) {
    EXPECT_EQ(kodlapra("őűŐŰá"), "\xF5\xFB\xD5\xDB\xE1");
    EXPECT_EQ(kodlaprol("\xF5\xFB\xD5\xDB\xE1"), "őűŐŰá");
    EXPECT_EQ(kodlapra("€"), "\x80");
}

TEST(Kodlap, AHianyzoKarakterKerdojel) {
    EXPECT_EQ(kodlapra("a漢b😀c"), "a?b?c");
    EXPECT_EQ(kodlapra("a\xFF"
                       "b"),
              "a?b");
    EXPECT_EQ(kodlaprol("a\x81"), "a?");
}

}  // namespace
