// Random "-PROPERTIES" scripts run by zqprops against the sample drawings:
// random objects selected by handle, random rows set to values both sensible
// and hostile, then saved. zqprops must end normally (0, or 1 for refused
// edits), the saved drawing must load again, and every object that was not
// selected must come back byte for byte.
#include "ZqFuzzSupport.h"
#include "DbPlainClasses.h"
#include "ZQCommandsBase.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <random>

namespace {

const char* const kValues[] = {
    "0", "1", "-1", "7", "256", "12.5", "-0.0", "1e308", "-1e308", "1e-320", "nan", "inf", "99999999999999999999",
    "ByLayer", "ByBlock", "Default", "red", "255,0,0", "300,0,0", "Continuous", "Nonexistent", "0.25 mm", "45d30'",
    "1'6\"", "N45d30'E", "3 1/2", "abc", "Standard", "Yes", "No", "\xC3\x84\xC3\x96\xC3\x9C \xE2\x82\xAC", "  ", "-", "L", "X"};

QString randomValue(std::mt19937& rng) {
  if (rng() % 12 == 0) return QString(int(rng() % 3000) + 1, QChar(u'x'));  // a long text
  return QString::fromUtf8(kValues[rng() % std::size(kValues)]);
}

TEST(EditFuzz, RandomPropertiesScriptsLeaveTheRestOfTheDrawingAlone) {
  ASSERT_TRUE(zqfuzz::startPlatform(true));
  const std::vector<QByteArray> drawings = zqfuzz::seedDrawings();
  ASSERT_FALSE(drawings.empty());
  QTemporaryDir dir;
  std::mt19937 rng(1616);
  int runs = 0, saved = 0, refusedRuns = 0;
  for (size_t d = 0; d < drawings.size(); ++d) {
    const QString input = dir.filePath(QStringLiteral("in%1.dxf").arg(d));
    {
      QFile f(input);
      ASSERT_TRUE(f.open(QIODevice::WriteOnly));
      f.write(drawings[d]);
    }
    QString error;
    OdDbDatabasePtr db = OdDxf::readDrawing(drawings[d], error);
    ASSERT_TRUE(db) << error.toStdString();
    OdDbObjectIdArray all;
    {
      OdDbObjectPtr ms = db->getModelSpaceId().openObject();
      all = OdDbBlockTableRecord::cast(ms.get())->entityIds();
    }
    if (all.isEmpty()) continue;
    const QHash<quint64, QByteArray> before = zqfuzz::entityRecords(drawings[d]);
    for (int k = 0; k < 10; ++k, ++runs) {
      // The selection: one to three objects by handle.
      OdDbObjectIdArray selection;
      const int picks = 1 + int(rng() % 3);
      for (int i = 0; i < picks; ++i) {
        const OdDbObjectId id = all[int(rng() % quint32(all.size()))];
        if (!selection.contains(id)) selection.append(id);
      }
      CZqPropertiesWindowService service(db.get());
      service.SetSelection(selection);
      std::vector<CZqPaletteRow> rows = service.Rows();
      // A read-only row asks for no value: left out, so that every value
      // answers its row.
      std::erase_if(rows, [](const CZqPaletteRow& r) { return r.readOnly; });
      QStringList script{QStringLiteral("-PROPERTIES")};
      for (const OdDbObjectId& id : selection) script << id.getHandle().ascii().qstring();
      script << QString();
      QString what;
      const int edits = 1 + int(rng() % 4);
      for (int e = 0; e < edits && !rows.empty(); ++e) {
        const CZqPaletteRow& row = rows[rng() % rows.size()];
        const QString value = randomValue(rng);
        script << row.categoryKey.qstring() + QLatin1Char('/') + row.nameKey.qstring() << value;
        what += row.nameKey.qstring() + QLatin1Char('=') + value.left(20) + QLatin1Char(' ');
      }
      const QString output = dir.filePath(QStringLiteral("out.dxf"));
      QFile::remove(output);
      script << QStringLiteral("X") << QStringLiteral("SAVE") << output << QStringLiteral("QUIT");
      const QString scriptPath = dir.filePath(QStringLiteral("edit.scr"));
      {
        QFile f(scriptPath);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(script.join(QLatin1Char('\n')).toUtf8() + '\n');
      }
      SCOPED_TRACE("drawing " + std::to_string(d) + ": " + what.toStdString());
      QProcess p;
      p.start(QStringLiteral(ZQ_BINARY_DIR "/bin/zqprops"), {input, QStringLiteral("--script"), scriptPath});
      ASSERT_TRUE(p.waitForFinished(120000));
      const QString err = QString::fromUtf8(p.readAllStandardError());
      ASSERT_EQ(p.exitStatus(), QProcess::NormalExit) << err.toStdString();
      ASSERT_TRUE(p.exitCode() == 0 || p.exitCode() == 1) << p.exitCode() << ": " << err.toStdString();
      if (p.exitCode() == 1) ++refusedRuns;
      // An edit the drawing could not keep is refused when made, so the save
      // goes through.
      ASSERT_TRUE(QFile::exists(output)) << err.toStdString();
      ++saved;
      const QByteArray after = zqfuzz::readFile(output);
      OdDbDatabasePtr reloaded = OdDxf::readDrawing(after, error);
      ASSERT_TRUE(reloaded) << error.toStdString();
      const QHash<quint64, QByteArray> now = zqfuzz::entityRecords(after);
      QSet<quint64> selected;
      for (const OdDbObjectId& id : selection) selected.insert(id.getHandle().value());
      for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (selected.contains(it.key())) continue;
        EXPECT_EQ(now.value(it.key()).toStdString(), it.value().toStdString())
            << "object " << QString::number(it.key(), 16).toStdString() << " was not selected";
      }
    }
  }
  EXPECT_EQ(saved, runs);
  EXPECT_GT(refusedRuns, 0);  // the hostile values were tried, and refused
}

}  // namespace
