// A start-up that fails halfway takes back everything it did, newest
// first, and leaves the class tree as it found it; and the orders of
// start-up and tear-down as the table's rows and the PDF-underlay answer
// give them.
#include "ZqTestSupport.h"
#include "ZqLifecycle.h"
#include <algorithm>
#include <map>

namespace {

// Makes the attachment of one drawing class under one protocol fail, after
// the class has taken the extension (the worst moment: the platform's
// state has already changed).
class FailingAttachment : public OdRxSystemObserver {
 public:
  FailingAttachment(std::string cls, std::string protocol) : m_cls(std::move(cls)), m_protocol(std::move(protocol)) {
    odrxAddSystemObserver(this);
  }
  ~FailingAttachment() override { odrxRemoveSystemObserver(this); }
  void extensionAdded(const OdRxClass* cls, const OdRxClass* protocol, const OdRxObject*, const OdRxObject*) override {
    if (cls->name().toStdString() == m_cls && protocol && protocol->name().toStdString() == m_protocol)
      throw OdError(eInvalidInput, OdString("attachment refused by the test"));
  }

 private:
  std::string m_cls, m_protocol;
};

struct FailurePoint {
  const char* name;
  const char* drawingClass;  // nullptr: the class registration of takenClass fails
  const char* protocol;
  const char* takenClass;
};

class FailedStartupTest : public ::testing::TestWithParam<FailurePoint> {
 protected:
  void SetUp() override {
    zqEnsureModuleLoaded();
    zqUnloadModule();
  }
  void TearDown() override { zqEnsureModuleLoaded(); }
};

// Every change the start-up made is undone after it, in reverse order:
// each "addX C P" by a later "delX C P", each "class+ N" by "class- N",
// each "cmd+" by "cmd-"; and what was undone last was done first.
void expectEverythingTakenBack(const std::vector<std::string>& events) {
  std::vector<std::string> open;  // changes not yet undone, oldest first
  for (const std::string& e : events) {
    auto undoes = [&](const char* doneTag, const char* undoTag) -> bool {
      if (e.rfind(undoTag, 0) != 0) return false;
      const std::string done = doneTag + e.substr(std::string(undoTag).size());
      // Removals of what was never attached (tear-down style) do not occur
      // in a rollback: each undo must match the newest open change.
      EXPECT_FALSE(open.empty()) << "undo without a change: " << e;
      if (!open.empty()) {
        EXPECT_EQ(open.back(), done) << "undone out of order";
        open.pop_back();
      }
      return true;
    };
    if (undoes("addX ", "delX ") || undoes("class+ ", "class- ") || undoes("cmd+ ", "cmd- ")) continue;
    open.push_back(e);
  }
  EXPECT_TRUE(open.empty()) << "left behind: " << (open.empty() ? std::string() : open.back());
}

TEST_P(FailedStartupTest, FailureHalfwayTakesBackWhatWasDone) {
  const FailurePoint& f = GetParam();
  // A class of the same name as one the module registers, or an
  // attachment that fails; the recorder hears each change before it fails.
  OdRxClass* squatter = f.drawingClass ? nullptr : newOdRxClass(OdString(f.takenClass), OdRxObject::desc());
  std::vector<std::string> events;
  {
    ZqRecordingObserver recorder;
    std::unique_ptr<FailingAttachment> failing;
    if (f.drawingClass) failing = std::make_unique<FailingAttachment>(f.drawingClass, f.protocol);
    EXPECT_THROW(odrxDynamicLinker()->loadModule("ZQProperties"), OdError);
    events = recorder.events;
  }
  // The start-up got as far as the failure point (or it would test nothing).
  const std::string reached = f.drawingClass ? std::string("addX ") + f.drawingClass + " " + f.protocol
                                             : std::string("class+ CZqEntityExPE");
  ASSERT_NE(std::find(events.begin(), events.end(), reached), events.end());
  if (squatter) {
    // The module did not take away a class it did not register.
    std::vector<std::string> removed;
    for (const std::string& e : events)
      if (e == std::string("class- ") + f.takenClass) removed.push_back(e);
    EXPECT_TRUE(removed.empty());
    EXPECT_EQ(odrxClassDictionary().getAt(OdString(f.takenClass)), squatter);
    deleteOdRxClass(squatter);
  }
  expectEverythingTakenBack(events);
  EXPECT_FALSE(odrxDynamicLinker()->getModule("ZQProperties"));
  for (const char* name : {"CZqPropertyBase", "CZqEntityPE", "CZqEntityExPE", "CZqLinePE", "CZqPrintObjectInfoPE"})
    EXPECT_FALSE(odrxClassDictionary().has(OdString(name))) << name;
  EXPECT_EQ(odedRegCmds()->lookupGlobalCmd("_-PROPERTIES"), nullptr);

  // A later start-up finds the tree as before and succeeds.
  ASSERT_TRUE(odrxDynamicLinker()->loadModule("ZQProperties"));
  EXPECT_EQ(OdDbLine::desc()->getX(CZqPropertyBase::desc())->isA()->name().toStdString(), "CZqLinePE");
  EXPECT_EQ(OdDbCircle::desc()->getX(CZqPrintObjectInfoPE::desc())->isA()->name().toStdString(), "CZqPrintObjectInfoPE");
}

INSTANTIATE_TEST_SUITE_P(
    Points, FailedStartupTest,
    ::testing::Values(FailurePoint{"FirstProvider", "OdDbCircle", "CZqPropertyBase", nullptr},
                      FailurePoint{"MiddleProvider", "OdDbPoint", "CZqPropertyBase", nullptr},
                      FailurePoint{"LastProvider", "OdDbXline", "CZqPropertyBase", nullptr},
                      FailurePoint{"ClassRegistration", nullptr, nullptr, "CZqRayPE"},
                      FailurePoint{"FirstInformation", "OdDbCircle", "CZqPrintObjectInfoPE", nullptr},
                      FailurePoint{"LastInformation", "OdDbXline", "CZqPrintObjectInfoPE", nullptr}),
    [](const auto& info) { return std::string(info.param.name); });

// --- Orders ----------------------------------------------------------------------

// A table with the rows whose places are special: the multileader (64,
// information after 43), the PDF and DGN underlays (45, 46, information
// after the multileader's), a record (65) and a provider under its own
// protocol (71).
std::vector<ZqTableRow> specialRows() {
  return {{14, ZqAttachStep::kEntity, true, 14},   {43, ZqAttachStep::kEntity, true, 43},
          {44, ZqAttachStep::kEntity, false, 44},  {45, ZqAttachStep::kEntity, true, 43.2},
          {46, ZqAttachStep::kEntity, true, 43.3}, {64, ZqAttachStep::kEntity, true, 43.1},
          {65, ZqAttachStep::kRecord, false, 65},  {70, ZqAttachStep::kRecord, false, 70},
          {71, ZqAttachStep::kOwn, false, 71}};
}

std::vector<int> rowNumbers(const std::vector<ZqTableRow>& rows, const std::vector<size_t>& indices) {
  std::vector<int> out;
  for (size_t i : indices) out.push_back(rows[i].row);
  return out;
}

class OrderTest : public ::testing::TestWithParam<bool> {};

TEST_P(OrderTest, StartupOrdersFollowTheTableAndThePdfAnswer) {
  const bool pdf = GetParam();
  const std::vector<ZqTableRow> rows = specialRows();
  const ZqStartupOrder o = ZqStartupOrderOf(rows, pdf);
  EXPECT_EQ(rowNumbers(rows, o.entities), pdf ? (std::vector<int>{14, 43, 44, 45, 46, 64})
                                              : (std::vector<int>{14, 43, 44, 46, 64}));
  EXPECT_EQ(rowNumbers(rows, o.records), (std::vector<int>{65, 70}));
  EXPECT_EQ(rowNumbers(rows, o.infos), pdf ? (std::vector<int>{14, 43, 64, 45, 46}) : (std::vector<int>{14, 43, 64, 46}));
  EXPECT_EQ(rowNumbers(rows, o.own), (std::vector<int>{71}));
}

// Tear-down asks the PDF-underlay question again at steps 2 and 7: with
// the capability off, neither the provider nor the information provider
// of OdDbPdfReference is detached.
TEST_P(OrderTest, TeardownOrdersAskThePdfQuestionAtBothSteps) {
  const bool pdf = GetParam();
  const std::vector<ZqTableRow> rows = specialRows();
  const ZqTeardownOrder o = ZqTeardownOrderOf(rows, pdf);
  EXPECT_EQ(rowNumbers(rows, o.entities), pdf ? (std::vector<int>{14, 43, 44, 64, 45, 46})
                                              : (std::vector<int>{14, 43, 44, 64, 46}));
  EXPECT_EQ(rowNumbers(rows, o.records), (std::vector<int>{65, 70}));
  EXPECT_EQ(rowNumbers(rows, o.own), (std::vector<int>{71}));
  // Information removals: table rows by number, the four extra classes as -1..-4.
  std::vector<int> infos;
  for (const ZqInfoRemoval& r : o.infos) infos.push_back(r.row >= 0 ? rows[size_t(r.row)].row : -1 - r.extra);
  const std::vector<int> expected = pdf ? std::vector<int>{-1, 14, -2, -3, 43, -4, 64, 45, 46}
                                        : std::vector<int>{-1, 14, -2, -3, 43, -4, 64, 46};
  EXPECT_EQ(infos, expected);
}

INSTANTIATE_TEST_SUITE_P(PdfCapability, OrderTest, ::testing::Values(true, false),
                         [](const auto& info) { return info.param ? "PdfOn" : "PdfOff"; });

}  // namespace
