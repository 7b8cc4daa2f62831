// Damaged drawings: a sample cut at every tag boundary (ASCII and binary), a
// big sample cut at a thousand random offsets, and single bytes flipped.
// Each damaged file is either loaded with a report of what was repaired or
// refused with the line or byte offset where reading stopped - never a crash,
// never a silently empty drawing, never a hang: a watchdog ends the program
// when one load takes longer than its bound.
#include "ZqFuzzSupport.h"
#include "DbPlainClasses.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <atomic>
#include <chrono>
#include <mutex>
#include <random>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

// Aborts the program when a load runs longer than kBound: a hang is a
// failure with the case named, not a stuck test.
class Watchdog {
 public:
  static constexpr std::chrono::seconds kBound{60};
  Watchdog() : m_thread([this] { watch(); }) {}
  ~Watchdog() {
    m_stop = true;
    m_thread.join();
  }
  void start(std::string what) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_what = std::move(what);
    m_started = Clock::now().time_since_epoch().count();
  }
  void stop() { m_started = 0; }

 private:
  void watch() {
    while (!m_stop) {
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      const auto started = m_started.load();
      if (started && Clock::now().time_since_epoch().count() - started > std::chrono::nanoseconds(kBound).count()) {
        std::lock_guard<std::mutex> lock(m_mutex);
        std::fprintf(stderr, "a load took longer than %lld s: %s\n", (long long)kBound.count(), m_what.c_str());
        std::abort();
      }
    }
  }
  std::atomic<bool> m_stop{false};
  std::atomic<Clock::rep> m_started{0};
  std::mutex m_mutex;
  std::string m_what;
  std::thread m_thread;
};

qsizetype modelSpaceCount(OdDbDatabase* db) {
  OdDbObjectPtr ms = db->getModelSpaceId().openObject();
  auto space = OdDbBlockTableRecord::cast(ms.get());
  return space ? space->entityIds().size() : 0;
}

// The place a refusal names, as a line or byte offset, or -1.
qsizetype placeOf(const QString& error) {
  const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("^(?:line|byte offset) (\\d+): ")).match(error);
  return m.hasMatch() ? m.captured(1).toLongLong() : -1;
}

struct Tally {
  int loaded = 0, refused = 0;
};

// Loads one damaged copy and checks what came back. `cutShort` says the
// copy lost the end of the file, so a load must report a repair;
// `entities` is the model-space count of the undamaged drawing.
void check(Watchdog& dog, const QByteArray& bytes, const std::string& what, bool binary, bool cutShort,
           qsizetype entities, Tally& tally) {
  QString error;
  QStringList warnings;
  dog.start(what);
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error, &warnings);
  if (!db) {
    dog.stop();
    ++tally.refused;
    const qsizetype place = placeOf(error);
    ASSERT_GE(place, 0) << what << ": " << error.toStdString();
    // The place lies within what is left of the file; a text file cut short
    // is refused where its data ends (the line after the last one whole, or
    // the cut line itself), not somewhere before.
    const qsizetype limit = binary ? bytes.size() : bytes.count('\n') + 2;
    EXPECT_LE(place, limit) << what << ": " << error.toStdString();
    if (cutShort && !binary) {
      EXPECT_GE(place, bytes.count('\n') + 1) << what << ": " << error.toStdString();
    }
    // (A damaged sentinel makes the file read as ASCII.)
    EXPECT_EQ(error.startsWith(QStringLiteral("byte offset")), binary && bytes.startsWith("AutoCAD Binary DXF"))
        << what << ": " << error.toStdString();
    return;
  }
  ++tally.loaded;
  if (cutShort) {
    EXPECT_FALSE(warnings.isEmpty()) << what << ": the end of the file is missing, and nothing was reported";
  }
  // What loads can be written.
  QString writeError;
  (void)OdDxf::writeDrawing(db.get(), &writeError);
  dog.stop();
  if (entities > 0 && modelSpaceCount(db.get()) == 0) {
    EXPECT_FALSE(warnings.isEmpty()) << what << ": loaded as an empty drawing without a word";
  }
}

qsizetype entitiesOf(const QByteArray& bytes) {
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error);
  EXPECT_TRUE(db) << error.toStdString();
  return db ? modelSpaceCount(db.get()) : 0;
}

class TruncationSweep : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { zqfuzz::startPlatform(false); }
  Watchdog dog;
};

const QString kSmall = QStringLiteral(ZQ_SAMPLES_DIR "/libredwg__test__test-data__2000__entities-2d.dxf");
const QString kBig = QStringLiteral(ZQ_SAMPLES_DIR "/libredwg__test__test-data__2010__Leader.dxf");

// The end of the file is missing from every cut: only the trailing line end
// after EOF may go without a report.
bool onlyLineEndLost(const QByteArray& whole, qsizetype cut) {
  return whole.mid(cut).trimmed().isEmpty();
}

TEST_F(TruncationSweep, SmallSampleCutAtEveryTagBoundary) {
  const QByteArray ascii = zqfuzz::readFile(kSmall);
  ASSERT_FALSE(ascii.isEmpty());
  const qsizetype entities = entitiesOf(ascii);
  ASSERT_GT(entities, 0);
  Tally tally;
  int line = 0;
  for (qsizetype at = 0; at < ascii.size(); ++at) {
    if (ascii[at] != '\n' || ++line % 2) continue;  // after every value line
    check(dog, ascii.left(at + 1), "ascii cut at " + std::to_string(at + 1), false, !onlyLineEndLost(ascii, at + 1), entities, tally);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(tally.refused, 900);

  // The same drawing in binary form, cut before every tag.
  OdDxf::File file;
  QString error;
  ASSERT_TRUE(OdDxf::File::read(ascii, file, error));
  const QByteArray binary = file.write(OdDxf::File::Form::Binary);
  OdDxf::File read;
  ASSERT_TRUE(OdDxf::File::read(binary, read, error)) << error.toStdString();
  std::vector<qsizetype> starts;
  auto collect = [&](const OdDxf::Record& r) {
    for (const OdDxf::Tag& t : r) starts.push_back(t.raw().data() - binary.constData() - 2);
  };
  collect(read.prologue());
  for (const OdDxf::Section& s : read.sections()) {
    collect(s.head);
    for (const OdDxf::Record& r : s.records) collect(r);
    collect(s.tail);
  }
  collect(read.eof());
  ASSERT_GT(starts.size(), 1000u);
  Tally binTally;
  for (qsizetype cut : starts) {
    check(dog, binary.left(cut), "binary cut at " + std::to_string(cut), true, true, entities, binTally);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(binTally.refused, 900);
}

TEST_F(TruncationSweep, BigSampleCutAtRandomOffsets) {
  const QByteArray ascii = zqfuzz::readFile(kBig);
  ASSERT_GT(ascii.size(), 100000);
  const qsizetype entities = entitiesOf(ascii);
  std::mt19937 rng(16);
  Tally tally;
  for (int i = 0; i < 1000; ++i) {
    const qsizetype cut = qsizetype(rng() % quint32(ascii.size()));
    check(dog, ascii.left(cut), "cut at " + std::to_string(cut), false, !onlyLineEndLost(ascii, cut), entities, tally);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(tally.refused, 900);
}

// A flipped byte may leave a readable drawing, but one that kept its
// entities: a drawing whose model space comes back empty must say why.
TEST_F(TruncationSweep, FlippedBytesNeverLoadSilentlyEmpty) {
  const QByteArray ascii = zqfuzz::readFile(kSmall);
  OdDxf::File file;
  QString error;
  ASSERT_TRUE(OdDxf::File::read(ascii, file, error));
  const qsizetype entities = entitiesOf(ascii);
  ASSERT_GT(entities, 0);
  std::mt19937 rng(1616);
  for (const QByteArray& original : {ascii, file.write(OdDxf::File::Form::Binary)}) {
    const bool binary = original.startsWith("AutoCAD Binary DXF");
    Tally tally;
    for (int i = 0; i < 1500; ++i) {
      QByteArray bytes = original;
      const qsizetype at = qsizetype(rng() % quint32(bytes.size()));
      bytes[at] = char(bytes[at] ^ char(1 << (rng() % 8)));
      const std::string what = (binary ? "binary" : "ascii") + std::string(" flip at ") + std::to_string(at);
      check(dog, bytes, what, binary, false, entities, tally);
      if (HasFatalFailure()) return;
    }
    EXPECT_GT(tally.loaded, 0);
    EXPECT_GT(tally.refused, 0);
  }
}

}  // namespace
