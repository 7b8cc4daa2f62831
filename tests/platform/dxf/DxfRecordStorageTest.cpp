// The bytes of edited tags: many edits of one record (so that its dropped
// bytes are compacted away several times), copies of a record edited apart,
// and records that outlive the record they were copied from - every value
// reads back as last written, in ASCII and binary records.
#include "DxfTestSupport.h"

#include <map>

using namespace OdDxf;

namespace {

class DxfRecordStorage : public ::testing::TestWithParam<bool> {
 protected:
  Record make() const {
    Format f;
    f.binary = GetParam();
    return Record::make(f, "LWPOLYLINE");
  }
};

// A shadow model of the record: code and value of each tag, in order.
using Shadow = std::vector<std::pair<int, double>>;

void expectSame(const Record& r, const Shadow& shadow) {
  ASSERT_EQ(r.size(), int(shadow.size()) + 1);
  for (int i = 1; i < r.size(); ++i) {
    bool ok = false;
    EXPECT_EQ(r.at(i).code(), shadow[size_t(i - 1)].first) << "tag " << i;
    EXPECT_EQ(r.at(i).real(&ok), shadow[size_t(i - 1)].second) << "tag " << i;
    EXPECT_TRUE(ok);
  }
}

// Edits, inserts and removals in a fixed pseudo-random order, checked
// against the shadow after each round.
TEST_P(DxfRecordStorage, ManyEditsReadBackAsLastWritten) {
  Record r = make();
  Shadow shadow;
  for (int i = 0; i < 200; ++i) {
    ASSERT_EQ(r.append(10 + 10 * (i % 2)), i + 1);
    ASSERT_TRUE(r.setReal(i + 1, i * 0.5));
    shadow.emplace_back(10 + 10 * (i % 2), i * 0.5);
  }
  unsigned seed = 12345;
  auto next = [&](unsigned n) {
    seed = seed * 1103515245u + 12345u;
    return (seed >> 8) % n;
  };
  for (int round = 0; round < 40; ++round) {
    for (int k = 0; k < 300; ++k) {  // far more rewritten bytes than live ones
      const unsigned at = next(unsigned(shadow.size()));
      const double v = round * 1000.0 + k + 0.125;
      ASSERT_TRUE(r.setReal(int(at) + 1, v));
      shadow[at].second = v;
    }
    const unsigned from = next(unsigned(shadow.size()) - 4);
    r.remove(int(from) + 1, 3);
    shadow.erase(shadow.begin() + from, shadow.begin() + from + 3);
    for (int k = 0; k < 3; ++k) {
      const unsigned at = next(unsigned(shadow.size()));
      ASSERT_TRUE(r.insert(int(at) + 1, 40));
      ASSERT_TRUE(r.setReal(int(at) + 1, -double(round)));
      shadow.insert(shadow.begin() + at, {40, -double(round)});
    }
    expectSame(r, shadow);
  }
}

// A copy shares the bytes written so far; edits of either afterwards do not
// show in the other, and a copy keeps its values when the original is gone.
TEST_P(DxfRecordStorage, CopiesAreEditedApart) {
  Record a = make();
  for (int i = 0; i < 50; ++i) ASSERT_TRUE(a.setReal(a.append(10), double(i)));
  Shadow sa;
  for (int i = 0; i < 50; ++i) sa.emplace_back(10, double(i));
  Shadow sb = sa;
  auto b = std::make_unique<Record>(a);
  for (int round = 0; round < 100; ++round) {
    for (int i = 0; i < 50; ++i) {
      ASSERT_TRUE(a.setReal(i + 1, round + i * 0.25));
      sa[size_t(i)].second = round + i * 0.25;
      ASSERT_TRUE(b->setReal(50 - i, -round - i * 0.5));
      sb[size_t(49 - i)].second = -round - i * 0.5;
    }
  }
  expectSame(a, sa);
  expectSame(*b, sb);
  Record c = *b;
  b.reset();
  for (int i = 0; i < 50; i += 7) {
    ASSERT_TRUE(c.setReal(i + 1, 7.75));
    sb[size_t(i)].second = 7.75;
  }
  expectSame(c, sb);
  expectSame(a, sa);
}

// A record with long vertex lists written anew several times in a file:
// the file writes the last values, and its other records are untouched.
TEST_P(DxfRecordStorage, RewrittenListsWriteTheLastValues) {
  Record r = make();
  Record other = make();
  ASSERT_TRUE(other.setReal(other.append(10), 42.0));
  for (int pass = 0; pass < 5; ++pass) {
    r.remove(1, r.size() - 1);
    for (int i = 0; i < 5000; ++i) ASSERT_TRUE(r.setReal(r.append(10 + 10 * (i % 2)), pass * 10000.0 + i));
  }
  Shadow shadow;
  for (int i = 0; i < 5000; ++i) shadow.emplace_back(10 + 10 * (i % 2), 40000.0 + i);
  expectSame(r, shadow);
  expectSame(other, Shadow{{10, 42.0}});
}

INSTANTIATE_TEST_SUITE_P(Forms, DxfRecordStorage, ::testing::Values(false, true),
                         [](const auto& info) { return std::string(info.param ? "Binary" : "Ascii"); });

}  // namespace
