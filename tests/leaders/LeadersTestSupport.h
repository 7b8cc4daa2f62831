#pragma once
// The fixture of the leader tests: a sample drawing read, objects by
// handle, a provider's own rows in container order, the drawing saved to
// bytes and read by ezdxf.
#include "../annotation/TextTestSupport.h"
#include "DxfDatabase.h"
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>

class ZqLeadersTest : public ZqDrawingTest {
 protected:
  void load(const char* sample) {
    path = QString(ZQ_SAMPLES_DIR) + "/" + sample;
    QString error;
    db = OdDxf::readDrawing(path, error);
    ASSERT_TRUE(db) << error.toStdString();
  }
  OdDbObjectId object(const char* handle) { return db->getOdDbObjectId(OdDbHandle(OdString(handle))); }

  // "Category/Name" of every row from the first one named `from` on.
  std::vector<std::string> ownRows(const OdDbObjectId& id, const char* from) {
    OdDbObjectPtr o = id.openObject();
    auto rows = zqRowsOf(o.get());
    std::vector<std::string> out;
    for (int i = 0; i < rows->GetCount(); ++i) {
      const CZqPropertyDescription* d = rows->GetAt(i);
      out.push_back((d->GetCategoryKey().qstring() + "/" + d->GetNameKey().qstring()).toStdString());
    }
    const auto at = std::find(out.begin(), out.end(), from);
    return std::vector<std::string>(at, out.end());
  }
  bool readOnly(const OdDbObjectId& id, const char* category, const char* name) {
    OdDbObjectPtr o = id.openObject();
    auto rows = zqRowsOf(o.get());
    const CZqPropertyDescription* d = zqRow(rows.get(), category, name);
    EXPECT_NE(d, nullptr) << name;
    return d && d->IsReadOnly(o.get());
  }
  QByteArray saved() { return OdDxf::writeDrawing(db.get()); }
  QByteArray original() {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }

  // Runs `body` (indented Python using `doc`) on the saved bytes; its lines
  // keyed by their first field, the handle.
  QMap<QString, QStringList> ezdxfRows(const QByteArray& bytes, const char* body) {
    const QString file = QDir::temp().filePath(QStringLiteral("zq_leaders_%1.dxf").arg(QCoreApplication::applicationPid()));
    QFile out(file);
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
    out.close();
    int code = -1;
    const auto rows = zqPythonRowsByHandle(QStringLiteral("import sys, ezdxf\ndoc = ezdxf.readfile(sys.argv[1])\n") +
                                               QString::fromUtf8(body),
                                           {file}, &code);
    QFile::remove(file);
    EXPECT_EQ(code, 0);
    return rows;
  }

  QString path;
};
