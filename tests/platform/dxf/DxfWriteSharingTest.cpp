// Writing a file that was not changed gives back the buffer it was read
// from, without a copy; any change to the records' order, number or values
// is written out as it is.
#include "DxfTestSupport.h"

using namespace OdDxf;

namespace {

const QByteArray kDrawing =
    "  0\nSECTION\n  2\nENTITIES\n"
    "  0\nLINE\n  5\nA1\n  8\nL1\n 10\n1.0\n"
    "  0\nPOINT\n  5\nA2\n  8\nL2\n 10\n2.0\n"
    "  0\nCIRCLE\n  5\nA3\n  8\nL3\n 40\n3.0\n"
    "  0\nENDSEC\n  0\nEOF\ntrailer text\n";

struct SharingCase {
  const char* name;
  void (*change)(File&);
  const char* expected;  // what write() gives; null: the bytes read
};

void swapFirstTwo(File& f) { f.section("ENTITIES")->records.swapItemsAt(0, 1); }
void removeMiddle(File& f) { f.section("ENTITIES")->records.removeAt(1); }
void duplicateFirst(File& f) { f.section("ENTITIES")->records.append(f.section("ENTITIES")->records.at(0)); }
void editLayer(File& f) { ASSERT_TRUE(f.section("ENTITIES")->records[2].setString(2, QStringLiteral("X"))); }

class DxfWriteSharing : public ::testing::TestWithParam<SharingCase> {};

TEST_P(DxfWriteSharing, WritesWhatTheRecordsHold) {
  const SharingCase& c = GetParam();
  const QByteArray bytes(kDrawing.constData(), kDrawing.size());  // a buffer of its own
  File f;
  QString error;
  ASSERT_TRUE(File::read(bytes, f, error)) << error.toStdString();
  if (c.change) c.change(f);
  const QByteArray out = f.write();
  if (!c.expected) {
    EXPECT_EQ(out, bytes);
    EXPECT_EQ(out.constData(), bytes.constData()) << "the unchanged file was copied";
  } else {
    EXPECT_EQ(out.toStdString(), std::string(c.expected));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DxfWriteSharing,
    ::testing::Values(
        SharingCase{"Unchanged", nullptr, nullptr},
        SharingCase{"Swapped", swapFirstTwo,
                    "  0\nSECTION\n  2\nENTITIES\n  0\nPOINT\n  5\nA2\n  8\nL2\n 10\n2.0\n"
                    "  0\nLINE\n  5\nA1\n  8\nL1\n 10\n1.0\n  0\nCIRCLE\n  5\nA3\n  8\nL3\n 40\n3.0\n"
                    "  0\nENDSEC\n  0\nEOF\ntrailer text\n"},
        SharingCase{"Removed", removeMiddle,
                    "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  5\nA1\n  8\nL1\n 10\n1.0\n"
                    "  0\nCIRCLE\n  5\nA3\n  8\nL3\n 40\n3.0\n  0\nENDSEC\n  0\nEOF\ntrailer text\n"},
        SharingCase{"Duplicated", duplicateFirst,
                    "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  5\nA1\n  8\nL1\n 10\n1.0\n"
                    "  0\nPOINT\n  5\nA2\n  8\nL2\n 10\n2.0\n  0\nCIRCLE\n  5\nA3\n  8\nL3\n 40\n3.0\n"
                    "  0\nLINE\n  5\nA1\n  8\nL1\n 10\n1.0\n  0\nENDSEC\n  0\nEOF\ntrailer text\n"},
        SharingCase{"Edited", editLayer,
                    "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  5\nA1\n  8\nL1\n 10\n1.0\n"
                    "  0\nPOINT\n  5\nA2\n  8\nL2\n 10\n2.0\n  0\nCIRCLE\n  5\nA3\n  8\nX\n 40\n3.0\n"
                    "  0\nENDSEC\n  0\nEOF\ntrailer text\n"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
