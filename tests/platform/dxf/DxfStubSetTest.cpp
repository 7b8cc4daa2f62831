// The set of objects a drawing's records belong to: inserts, erases and
// growth checked against std::set after every step, including erased slots
// reused and probe chains that run past erased entries.
#include "DxfDrawing.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

using OdDxf::mapping::StubSet;

struct StubSetCase {
  const char* name;
  int distinct;  // stubs drawn from this many addresses
  int steps;
  int eraseOneIn;  // every n-th step erases (0: never)
};

class DxfStubSet : public ::testing::TestWithParam<StubSetCase> {};

TEST_P(DxfStubSet, AgreesWithStdSet) {
  const StubSetCase& c = GetParam();
  // Addresses spaced like heap objects; index 0 is the null stub.
  std::vector<char> arena(size_t(c.distinct) * 48);
  auto stub = [&](int k) { return k == 0 ? nullptr : reinterpret_cast<const OdDbStub*>(arena.data() + size_t(k) * 48); };
  std::mt19937 rng(12345);
  std::uniform_int_distribution<int> pick(0, c.distinct - 1);
  StubSet set;
  std::set<const OdDbStub*> ref;
  for (int step = 0; step < c.steps; ++step) {
    const OdDbStub* s = stub(pick(rng));
    if (c.eraseOneIn && step % c.eraseOneIn == 0) {
      set.erase(s);
      ref.erase(s);
    } else {
      set.insert(s);
      ref.insert(s);
    }
    if (step % 97 == 0 || step == c.steps - 1) {
      ASSERT_EQ(set.size(), ref.size()) << "step " << step;
      for (int k = 0; k < c.distinct; ++k) ASSERT_EQ(set.count(stub(k)), ref.count(stub(k)) == 1) << "step " << step << " stub " << k;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, DxfStubSet,
                         ::testing::Values(StubSetCase{"InsertsOnly", 3000, 5000, 0},
                                           StubSetCase{"HalfErased", 500, 20000, 2},
                                           StubSetCase{"FewErased", 5000, 20000, 7},
                                           StubSetCase{"SmallChurn", 8, 2000, 3}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(DxfStubSetReserve, KeepsWhatItHolds) {
  std::vector<char> arena(64 * 100);
  StubSet set;
  for (int k = 0; k < 100; ++k) set.insert(reinterpret_cast<const OdDbStub*>(arena.data() + k * 64));
  set.reserve(100000);
  EXPECT_EQ(set.size(), 100u);
  for (int k = 0; k < 100; ++k) EXPECT_TRUE(set.count(reinterpret_cast<const OdDbStub*>(arena.data() + k * 64)));
  EXPECT_FALSE(set.count(reinterpret_cast<const OdDbStub*>(arena.data() + 1)));
}

}  // namespace
