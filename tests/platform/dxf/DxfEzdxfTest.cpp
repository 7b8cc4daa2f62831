// Binary DXF against an independent reader: ezdxf makes binary files from
// samples of several releases and reads ours; its reading of every tag is the
// reference. The drawing mapper saves ezdxf's binary files back unchanged.
#include "DxfDatabaseSupport.h"

#include <QTemporaryDir>

using namespace OdDxf;
using namespace dxftest;

namespace {

// Writes one line per tag as ezdxf reads a binary file (the last argument):
// "code <TAB> s|f|i|b <TAB> payload" (strings as UTF-8 hex, doubles as
// float.hex(), binary chunks as hex). Given two files, it first saves the
// first as the second in binary.
const char* kDumpTags = R"(
import sys, ezdxf
from ezdxf.lldxf.tagger import binary_tags_loader
if len(sys.argv) > 2: ezdxf.readfile(sys.argv[1]).saveas(sys.argv[2], fmt='bin')
out = []
for t in binary_tags_loader(open(sys.argv[-1], 'rb').read()):
    v = t.value
    if isinstance(v, bytes): out.append('%d\tb\t%s' % (t.code, v.hex()))
    elif isinstance(v, float): out.append('%d\tf\t%s' % (t.code, v.hex()))
    elif isinstance(v, int): out.append('%d\ti\t%d' % (t.code, v))
    else: out.append('%d\ts\t%s' % (t.code, v.encode('utf-8').hex()))
print('\n'.join(out))
)";

// ezdxf's reading of the binary file (made from `ascii` first, if given).
QByteArray ezdxfTags(const QString& path, const QString& ascii = QString()) {
  bool ok = false;
  const QByteArray dump = runEzdxf(QString::fromLatin1(kDumpTags), ascii.isEmpty() ? QStringList{path} : QStringList{ascii, path}, ok);
  EXPECT_TRUE(ok) << "ezdxf could not read " << path.toStdString();
  return dump;
}

// Compares our tags of a binary file with ezdxf's reading of the same bytes.
void expectSameTags(const QByteArray& dump, const File& f) {
  const QList<QByteArray> lines = dump.trimmed().split('\n');
  const std::vector<Tag> tags = allTags(f);
  ASSERT_EQ(qsizetype(tags.size()), lines.size());
  for (size_t i = 0; i < tags.size(); ++i) {
    const QList<QByteArray> p = lines[qsizetype(i)].split('\t');
    ASSERT_EQ(p.size(), 3);
    const Tag& t = tags[i];
    ASSERT_EQ(t.code(), p[0].toInt()) << "tag " << i;
    const QByteArray& v = p[2];
    switch (p[1][0]) {
      case 'f': ASSERT_EQ(t.real(), std::strtod(v.constData(), nullptr)) << "tag " << i; break;
      case 'i': ASSERT_EQ(t.integer(), v.toLongLong()) << "tag " << i; break;
      case 'b': ASSERT_EQ(t.bytes(), QByteArray::fromHex(v)) << "tag " << i; break;
      default:  // ezdxf's tag reader leaves \U+XXXX escapes in; resolve them alike
        ASSERT_EQ(t.str(f.codepage()), decodeText(QByteArray::fromHex(v), kUtf8)) << "tag " << i;
        break;
    }
  }
}

class DxfEzdxfBinary : public ::testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!haveEzdxf()) GTEST_SKIP() << "/usr/bin/python3 with ezdxf not available";
    ASSERT_TRUE(dir.isValid());
  }
  QTemporaryDir dir;
};

// ezdxf writes the binary file; we read it, and it must match ezdxf's own
// reading tag for tag. Written back unchanged it stays byte-identical, also
// through the drawing mapper with every object counting as modified.
TEST_P(DxfEzdxfBinary, ReadsBinaryMadeByEzdxf) {
  const QString ascii = samplePath(QString::fromLatin1(GetParam())), bin = dir.filePath(QStringLiteral("made.dxf"));
  const QByteArray dump = ezdxfTags(bin, ascii);
  File f;
  QString error;
  QStringList warnings;
  ASSERT_TRUE(File::load(bin, f, error, &warnings)) << error.toStdString();
  EXPECT_TRUE(f.isBinary());
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
  EXPECT_EQ(f.format().shortCodes, f.version() <= "AC1009");
  const QByteArray bytes = readBytes(bin);
  EXPECT_EQ(f.write(), bytes);
  expectSameTags(dump, f);

  odDbInitialize();
  OdDbDatabasePtr db = dxfdb::load(bytes);
  ASSERT_TRUE(db);
  EXPECT_EQ(dxfdb::save(db.get()), bytes);
  EXPECT_GT(dxfdb::touchAll(db.get(), bytes), 0);
  EXPECT_EQ(dxfdb::save(db.get()), bytes);
  // The same entities as the ASCII file it was made from.
  OdDbDatabasePtr fromAscii = dxfdb::load(readBytes(ascii));
  ASSERT_TRUE(fromAscii);
  EXPECT_EQ(dxfdb::entitiesOf(db->getModelSpaceId()).size(), dxfdb::entitiesOf(fromAscii->getModelSpaceId()).size());
}

// Our binary writer: ezdxf reads what we write from the ASCII sample.
TEST_P(DxfEzdxfBinary, EzdxfReadsOurBinary) {
  File ascii, ours;
  QString error;
  ASSERT_TRUE(File::load(samplePath(QString::fromLatin1(GetParam())), ascii, error));
  const QString bin = dir.filePath(QStringLiteral("ours.dxf"));
  ASSERT_TRUE(ascii.save(bin, error, File::Form::Binary)) << error.toStdString();
  ASSERT_TRUE(File::load(bin, ours, error)) << error.toStdString();
  expectSameTags(ezdxfTags(bin), ours);
}

INSTANTIATE_TEST_SUITE_P(Samples, DxfEzdxfBinary,
                         ::testing::Values("libredwg__test__test-data__r2.6__dim.dxf",          // saved as R12: 1-byte codes
                                           "libredwg__test__test-data__2000__entities-2d.dxf",  // ANSI_1250
                                           "libredwg__test__test-data__2007__Donut.dxf",        // UTF-8, thumbnail
                                           "libredwg__test__test-data__2000__TS1.dxf",          // ACIS, OLE2FRAME
                                           "libredwg__test__test-data__2013__gh109_1.dxf",      // proxy entities
                                           "ezdxf__examples_dxf__text_alignments.dxf",          // AC1018
                                           "ezdxf__examples_dxf__text_negative_extrusion.dxf"));  // AC1032

}  // namespace
