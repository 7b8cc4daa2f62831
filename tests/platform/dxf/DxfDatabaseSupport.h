#pragma once
// Helpers of the drawing mapper tests: loading, the ezdxf bridge with JSON
// answers, and record-by-record comparison of two DXF files.
#include "DbPlainClasses.h"
#include "DxfDatabase.h"
#include "DxfTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

// Readable failure messages for lists of record keys.
inline void PrintTo(const QStringList& list, std::ostream* os) { *os << '[' << list.join(QStringLiteral(", ")).toStdString() << ']'; }
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace dxfdb {

using namespace dxftest;

inline OdDbDatabasePtr load(const QByteArray& bytes, QStringList* warnings = nullptr) {
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error, warnings);
  EXPECT_TRUE(db) << error.toStdString();
  return db;
}

inline QByteArray save(OdDbDatabase* db) {
  QString error;
  const QByteArray out = OdDxf::writeDrawing(db, &error);
  EXPECT_TRUE(error.isEmpty()) << error.toStdString();
  return out;
}

// Runs a Python script with ezdxf; its standard output is JSON. A failing
// script is reported with what it printed on standard error.
inline QJsonValue ezdxfJson(const QString& script, const QStringList& args, bool* ok = nullptr) {
  QProcess p;
  p.start(QStringLiteral("/usr/bin/python3"), QStringList{QStringLiteral("-c"), script} + args);
  const bool good = p.waitForFinished(120000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
  const QByteArray out = p.readAllStandardOutput();
  if (!good) ADD_FAILURE() << "ezdxf script failed: " << p.readAllStandardError().right(2000).toStdString();
  QJsonParseError pe{};
  const QJsonDocument doc = QJsonDocument::fromJson(out, &pe);
  if (ok) *ok = good && pe.error == QJsonParseError::NoError;
  if (doc.isArray()) return doc.array();
  return doc.object();
}

// Each record of a DXF as text ("code<TAB>value" per tag), keyed by what
// names it: "$NAME" for header variables, "#HANDLE" for records with a
// handle, and "SECTION:TYPE#n" (n-th of its type there) for the others.
inline QMap<QString, QByteArray> recordsOf(const QByteArray& bytes) {
  QMap<QString, QByteArray> out;
  OdDxf::File f;
  QString error;
  if (!OdDxf::File::read(bytes, f, error)) {
    ADD_FAILURE() << "not readable: " << error.toStdString();
    return out;
  }
  auto text = [](const OdDxf::Record& r) {
    QByteArray t;
    for (const OdDxf::Tag& tag : r) t += QByteArray::number(tag.code()) + '\t' + tag.raw().toByteArray() + '\n';
    return t;
  };
  QMap<QByteArray, int> ordinal;  // across sections of one name (recover01 has several ENTITIES)
  for (const OdDxf::Section& s : f.sections()) {
    for (const OdDxf::Record& r : s.records) {
      QString key;
      if (s.name == "HEADER")
        key = QString::fromLatin1(r.type().toByteArray());
      else if (r.handle())
        key = QStringLiteral("#") + QString::number(r.handle(), 16).toUpper();
      else
        key = QStringLiteral("%1:%2#%3").arg(QString::fromLatin1(s.name), QString::fromLatin1(r.type().toByteArray()))
                  .arg(ordinal[s.name + ':' + r.type().toByteArray()]++);
      out.insert(key, text(r));
    }
  }
  return out;
}

// The keys of the records that differ between two files (or are in one only).
inline QStringList changedRecords(const QByteArray& before, const QByteArray& after) {
  const QMap<QString, QByteArray> a = recordsOf(before), b = recordsOf(after);
  QStringList out;
  for (auto it = a.begin(); it != a.end(); ++it)
    if (b.value(it.key()) != it.value()) out.append(it.key());
  for (auto it = b.begin(); it != b.end(); ++it)
    if (!a.contains(it.key())) out.append(it.key());
  out.sort();
  return out;
}

// JSON values equal, numbers to `tol` relative (ezdxf computes coordinates
// its own way).
inline ::testing::AssertionResult sameJson(const QJsonValue& a, const QJsonValue& b, double tol = 1e-9) {
  bool same = a == b;
  if (a.isDouble() && b.isDouble()) {
    same = std::fabs(a.toDouble() - b.toDouble()) <= tol * std::max(1.0, std::fabs(b.toDouble()));
  } else if (a.isArray() && b.isArray() && a.toArray().size() == b.toArray().size()) {
    same = true;
    for (qsizetype i = 0; same && i < a.toArray().size(); ++i) same = bool(sameJson(a.toArray()[i], b.toArray()[i], tol));
  }
  if (same) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << QJsonDocument(QJsonArray{a, b}).toJson(QJsonDocument::Compact).toStdString();
}

inline QString hex(const OdDbObjectId& id) { return id.getHandle().ascii().qstring(); }

inline OdDbObjectIdArray entitiesOf(const OdDbObjectId& block) {
  OdDbObjectPtr b = block.openObject();
  return static_cast<OdDbBlockTableRecord*>(b.get())->entityIds();
}

// The first model-space entity of exactly this class.
inline OdDbObjectId firstOf(OdDbDatabase* db, OdRxClass* cls) {
  for (const OdDbObjectId& id : entitiesOf(db->getModelSpaceId()))
    if (id.openObject()->isA() == cls) return id;
  return {};
}

// Marks as modified every object that has a record in the file (objects the
// reader made for what the file lacks are left alone).
inline int touchAll(OdDbDatabase* db, const QByteArray& bytes) {
  int n = 0;
  auto touch = [&](const OdDbObjectId& id) {
    if (!id.isValid()) return;
    id.stub()->object->setModified(true);
    ++n;
  };
  OdDbObjectPtr bt = db->getBlockTableId().openObject();
  for (const OdDbObjectId& block : static_cast<OdDbBlockTable*>(bt.get())->recordIds())
    for (const OdDbObjectId& e : entitiesOf(block)) touch(e);
  for (const QString& key : recordsOf(bytes).keys())
    if (key.startsWith('#')) touch(db->getOdDbObjectId(OdDbHandle(OdString(key.mid(1)))));
  return n;
}

}  // namespace dxfdb
