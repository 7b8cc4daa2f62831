// Every real drawing in the sample folder: lossless round trip, agreement with
// a plain line reader and with the sample manifest, ASCII <-> binary conversion.
#include "DxfTestSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>

using namespace OdDxf;
using namespace dxftest;

namespace {

struct ManifestEntry {
  QByteArray version;                  // "None" when the manifest found none
  std::map<QByteArray, int> entities;  // ENTITIES section, per type
};

// The sample manifest, written by whoever collected the files.
const std::map<std::string, ManifestEntry>& manifest() {
  static const std::map<std::string, ManifestEntry> m = [] {
    std::map<std::string, ManifestEntry> out;
    std::string current;
    for (const QByteArray& line : readBytes(samplePath(QStringLiteral("MANIFEST.md"))).split('\n')) {
      if (line.startsWith("## ")) current = line.mid(3).trimmed().toStdString();
      const qsizetype v = line.indexOf("$ACADVER ");
      if (line.startsWith("- size:") && v >= 0) out[current].version = line.mid(v + 9).split(',').first().trimmed();
      if (line.startsWith("- entities:"))
        for (const QByteArray& kv : line.mid(11).split(','))
          out[current].entities[kv.trimmed().split(':').first()] = kv.split(':').last().toInt();
    }
    return out;
  }();
  return m;
}

class DxfSample : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    name = QString::fromStdString(GetParam());
    bytes = readBytes(samplePath(name));
    ASSERT_FALSE(bytes.isEmpty());
    QString error;
    ASSERT_TRUE(File::read(bytes, file, error, &warnings)) << error.toStdString();
  }
  QString name;
  QByteArray bytes;
  File file;
  QStringList warnings;
};

// The tags a plain line reader finds, and the file written back byte for
// byte (a repaired file with its repairs added at the end only).
TEST_P(DxfSample, ReadsLikeAPlainLineReaderAndWritesBackByteForByte) {
  const std::vector<LineTag> expect = plainTags(bytes);
  const std::vector<Tag> tags = allTags(file);
  ASSERT_GE(tags.size(), expect.size());
  for (size_t i = 0; i < expect.size(); ++i) {
    ASSERT_EQ(tags[i].code(), expect[i].code) << "tag " << i;
    ASSERT_EQ(tags[i].raw(), expect[i].value) << "tag " << i;
  }
  if (isMalformedSample(GetParam())) {
    EXPECT_TRUE(file.write().startsWith(bytes));
    return;
  }
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
  EXPECT_TRUE(file.write(File::Form::Ascii) == bytes);
}

TEST_P(DxfSample, AgreesWithManifest) {
  const auto it = manifest().find(GetParam());
  ASSERT_NE(it, manifest().end());
  EXPECT_EQ(file.version(), it->second.version == "None" ? QByteArray() : it->second.version);
  std::map<QByteArray, int> counted;
  for (const Section& s : file.sections())
    if (s.name == "ENTITIES")
      for (const Record& r : s.records) ++counted[r.type().toByteArray()];
  EXPECT_EQ(counted, it->second.entities);
  EXPECT_EQ(file.isBinary(), false);
  EXPECT_EQ(file.format().crlf, bytes.contains("\r\n"));
}

TEST_P(DxfSample, AsciiToBinaryToAsciiKeepsEveryValue) {
  QStringList problems;
  const QByteArray bin = file.write(File::Form::Binary, &problems);
  EXPECT_TRUE(problems.isEmpty()) << problems.join('\n').toStdString();
  File fromBin, back;
  QString error;
  ASSERT_TRUE(File::read(bin, fromBin, error)) << error.toStdString();
  ASSERT_TRUE(fromBin.isBinary());
  EXPECT_EQ(fromBin.write(), bin);
  ASSERT_TRUE(File::read(fromBin.write(File::Form::Ascii), back, error)) << error.toStdString();
  const std::vector<Tag> a = allTags(file), b = allTags(fromBin), c = allTags(back);
  ASSERT_EQ(a.size(), b.size());
  ASSERT_EQ(a.size(), c.size());
  for (size_t i = 0; i < a.size(); ++i) {
    ASSERT_TRUE(sameTypedValue(a[i], b[i], file.codepage())) << "tag " << i;
    ASSERT_TRUE(sameTypedValue(a[i], c[i], file.codepage())) << "tag " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, DxfSample, ::testing::ValuesIn(sampleNames()),
                         [](const auto& info) {
                           return QString::fromStdString(info.param).remove(QRegularExpression("[^A-Za-z0-9]")).toStdString();
                         });

TEST(DxfSampleSet, CoversTheManifest) {
  EXPECT_EQ(sampleNames().size(), manifest().size());
}

}  // namespace
