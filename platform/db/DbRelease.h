#pragma once
// Drawing-file releases: the $ACADVER word ("AC1015"), the number the DXF
// code compares ("1015") and the name a user knows ("R2000"), and the
// release a database's edits must fit.
#include "DbDatabase.h"
#include <QString>

namespace OdDb {

struct ReleaseName {
  int number;        // 1015 for AC1015
  const char* name;  // "R2000"
};

// The releases of the DXF reference, oldest first.
inline constexpr ReleaseName kReleases[] = {
    {1009, "R12"},   {1012, "R13"},   {1014, "R14"},   {1015, "R2000"}, {1018, "R2004"},
    {1021, "R2007"}, {1024, "R2010"}, {1027, "R2013"}, {1032, "R2018"},
};

// 1015 for "AC1015"; 0 for anything else.
inline int releaseNumber(const QString& acadver) {
  const QString v = acadver.trimmed();
  if (v.size() != 6 || !v.startsWith(QLatin1String("AC"), Qt::CaseInsensitive)) return 0;
  bool ok = false;
  const int n = v.mid(2).toInt(&ok);
  return ok && n > 0 ? n : 0;
}

// "R2000" for 1015; releases between named ones (AC1010) by their word.
inline QString releaseName(int number) {
  for (const ReleaseName& r : kReleases)
    if (r.number == number) return QString::fromLatin1(r.name);
  return QStringLiteral("AC%1").arg(number);
}

// The release a user names: "R2018", "2018" or "AC1032" (any case); 0 when
// it is none of the releases above.
inline int releaseFromName(const QString& text) {
  const QString t = text.trimmed();
  for (const ReleaseName& r : kReleases) {
    const QString name = QString::fromLatin1(r.name);
    if (t.compare(name, Qt::CaseInsensitive) == 0 || t == name.mid(1) ||
        t.compare(QStringLiteral("AC%1").arg(r.number), Qt::CaseInsensitive) == 0)
      return r.number;
  }
  return 0;
}

// The release whose file the database's values must fit: the release it was
// read from (or is to be saved as). A file that names no release is read as
// the oldest DXF (R12). 0 for a database that was not read from a file: it
// has no release yet, so every value is allowed.
inline int databaseRelease(const OdDbDatabase* db) {
  if (!db) return 0;
  const int n = releaseNumber(db->originalFileVersion().qstring());
  if (n) return n;
  return db->fileData() ? kReleases[0].number : 0;
}

}  // namespace OdDb
