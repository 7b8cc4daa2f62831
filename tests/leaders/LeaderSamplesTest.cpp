// Every leader, multileader and tolerance frame of the sample drawings:
// listed by its own provider with the values another DXF reader reads,
// and the drawing written back byte for byte.
#include "LeadersTestSupport.h"

namespace {

const char* kReference = R"(
for e in doc.entitydb.values():
    t = e.dxftype()
    if t == 'LEADER':
        print(e.dxf.handle, t, len(e.vertices), e.dxf.dimstyle, *['%r,%r' % (v[0], v[1]) for v in e.vertices])
    elif t == 'TOLERANCE':
        p = e.dxf.insert
        print(e.dxf.handle, t, e.dxf.dimstyle, '%r,%r' % (p[0], p[1]))
    elif t == 'MULTILEADER':
        print(e.dxf.handle, t, e.dxf.content_type, e.dxf.get('leader_type', 1))
)";

class LeaderSamplesTest : public ZqLeadersTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(LeaderSamplesTest, ListWithTheirOwnRowsAndRoundTrip) {
  load(GetParam());
  const QMap<QString, QStringList> reference = ezdxfRows(original(), kReference);
  const QMap<QString, QString> providers{{"LEADER", "CZqLeaderPE"}, {"TOLERANCE", "CZqFcfPE"}, {"MULTILEADER", "CZqMLeaderPE"}};
  for (auto it = reference.cbegin(); it != reference.cend(); ++it) {
    SCOPED_TRACE(it.key().toStdString());
    const QStringList& f = it.value();
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(it.key().toULongLong(nullptr, 16)));
    ASSERT_FALSE(id.isNull());
    {
      OdDbObjectPtr o = id.openObject();
      EXPECT_EQ(zqProviderFor(o.get())->isA()->name().qstring(), providers[f[1]]);
    }
    auto xy = [&](const char* category, const char* x, const char* y, const CZqVariant& index = {}) {
      return QStringLiteral("%1,%2")
          .arg(QString::number(get(id, category, x, index).GetDouble(), 'g', 17),
               QString::number(get(id, category, y, index).GetDouble(), 'g', 17));
    };
    auto same = [](const QString& ours, const QString& theirs) {
      const QStringList a = ours.split(','), b = theirs.split(',');
      return std::fabs(a[0].toDouble() - b[0].toDouble()) < 1e-9 && std::fabs(a[1].toDouble() - b[1].toDouble()) < 1e-9;
    };
    if (f[1] == "LEADER") {
      const int n = f[2].toInt();
      EXPECT_EQ(get(id, "Geometry", "Vertex").GetCollection().GetCount(), n);
      EXPECT_EQ(get(id, "Misc", "DimStyle").IsEmpty(), false);
      for (int k = 0; k < n; ++k)
        EXPECT_TRUE(same(xy("Geometry", "Vertex x", "Vertex y", CZqVariant(int32_t(k))), f[4 + k])) << k;
      const auto labels = labelsOf(info(id));
      EXPECT_EQ(std::count(labels.begin(), labels.end(), "Vertex"), n);
    } else if (f[1] == "MULTILEADER") {
      // The content rows follow the content type (2 text, 1 block).
      OdDbObjectPtr o = id.openObject();
      auto rows = zqRowsOf(o.get());
      EXPECT_EQ(zqRow(rows.get(), "Text", "Content") != nullptr, f[2] == "2");
      EXPECT_EQ(zqRow(rows.get(), "Block", "Block name") != nullptr, f[2] == "1");
    } else if (f[1] == "TOLERANCE") {
      EXPECT_TRUE(same(xy("Geometry", "Position X", "Position Y"), f[3]));
      EXPECT_NE(infoLine(info(id), "text"), nullptr);
    }
  }
  EXPECT_FALSE(reference.isEmpty());
  EXPECT_TRUE(saved() == original());
}

INSTANTIATE_TEST_SUITE_P(Samples, LeaderSamplesTest,
                         ::testing::Values("libredwg__test__test-data__2010__Leader.dxf",
                                           "libredwg__test__test-data__2000__TS1.dxf",
                                           "libredwg__test__test-data__example_2000.dxf",
                                           "libredwg__test__test-data__example_2018.dxf",
                                           "libredwg__test__test-data__example_r14.dxf",
                                           "netDxf__TestDxfDocument__sample.dxf", "ezdxf__examples_dxf__uncommon.dxf"),
                         [](const auto& info) { return zqSampleTestName(info.param); });

}  // namespace
