// The CAD wildcards of selections by layer and kind.
#include <gtest/gtest.h>
#include "ZqSelection.h"

namespace {

struct WildcardCase {
  const char* text;
  const char* pattern;
  bool matches;
};

TEST(Wildcard, MatchesAsCadUsersWriteThem) {
  const WildcardCase cases[] = {
      {"WALL", "W*", true},          {"window", "W*", true},       {"AXIS", "W*", false},
      {"WALL", "~W*", false},        {"AXIS", "~W*", true},        {"WALL", "AXIS,WALL", true},
      {"Wall", "w?ll", true},        {"Wal", "w?ll", false},       {"L1", "L#", true},
      {"LA", "L#", false},           {"L12", "L#", false},         {"L12", "L#*", true},
      {"A1", "@#", true},            {"11", "@#", false},          {"A-B", "A.B", true},
      {"AXB", "A.B", false},         {"B", "[A-C]", true},         {"D", "[A-C]", false},
      {"D", "[~A-C]", true},         {"A*", "A`*", true},          {"AB", "A`*", false},
      {"A,B", "A`,B", true},         {"", "*", true},              {"", "?", false},
      {"PUB_DIM", "*_*", true},      {"TEXT", "*TEXT", true},      {"MTEXT", "*TEXT", true},
      {"TEXTS", "*TEXT", false},     {"ÄRGER", "ä*", true},        {"X", " X , Y ", true},
  };
  for (const WildcardCase& c : cases)
    EXPECT_EQ(zqWildcardMatch(QString::fromUtf8(c.text), QString::fromUtf8(c.pattern)), c.matches)
        << '"' << c.text << "\" against \"" << c.pattern << '"';
}

}  // namespace
