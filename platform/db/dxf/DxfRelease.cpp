// Moving a drawing read from a file to a newer release (see DxfDatabase.h).
#include "DxfDatabase.h"

#include "DbRelease.h"
#include "DxfDrawing.h"
#include "DxfInternal.h"

#include <QCoreApplication>

namespace OdDxf {
namespace {

bool hasHighBytes(QByteArrayView v) {
  for (char c : v)
    if (uchar(c) >= 0x80) return true;
  return false;
}

// Gives every record the new code page and re-encodes the text tags whose
// bytes mean something else in it (plain ASCII reads the same in all).
void reencode(Record& r, quint16 from, quint16 to) {
  detail::Access::format(r).codepage = to;
  for (int i = 0; i < r.size(); ++i) {
    const Tag& t = r.at(i);
    if (t.type() != ValueType::String || !hasHighBytes(t.raw())) continue;
    r.setString(i, decodeText(t.raw(), from));
  }
}

void reencode(File& file, quint16 from, quint16 to) {
  detail::Access::format(file).codepage = to;
  reencode(file.prologue(), from, to);
  for (Section& s : file.sections()) {
    reencode(s.head, from, to);
    for (Record& r : s.records) reencode(r, from, to);
    reencode(s.tail, from, to);
  }
  reencode(file.eof(), from, to);
}

}  // namespace

bool setSaveRelease(OdDbDatabase* db, int release, QString& error) {
  mapping::DrawingData* d = mapping::drawingData(db);
  const QString target = OdDb::releaseName(release);
  if (!d) {
    error = QCoreApplication::translate("errors", "Only a drawing read from a file can be saved as another release.");
    return false;
  }
  const int current = d->ctx.release;
  if (release == current) return true;
  const QString now = current ? OdDb::releaseName(current) : QCoreApplication::translate("errors", "an unnamed release");
  if (release < OdDb::kReleases[0].number || OdDb::releaseName(release).startsWith(QLatin1String("AC"))) {
    error = QCoreApplication::translate("errors", "%1 is not a release the drawing can be saved as.").arg(target);
    return false;
  }
  if (current > release) {
    error = QCoreApplication::translate("errors", "The drawing is %1 and cannot be saved as the older %2: what only %1 holds would be lost.")
                .arg(now, target);
    return false;
  }
  Record* version = d->file.headerVariable("$ACADVER");
  const int at = version ? version->find(1, 1) : -1;
  if (current < 1015 || at < 0) {
    error = QCoreApplication::translate("errors", "The drawing is %1 and cannot be saved as %2: only drawings of R2000 or later can be moved to a newer release.")
                .arg(now, target);
    return false;
  }
  const quint16 from = d->file.codepage();
  if (release >= 1021 && from != kUtf8) reencode(d->file, from, kUtf8);
  version->setString(at, QStringLiteral("AC%1").arg(release));
  d->ctx.release = release;
  db->setOriginalFileVersion(OdString(QStringLiteral("AC%1").arg(release)));
  return true;
}

}  // namespace OdDxf
