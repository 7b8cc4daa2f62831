// Proxy entities of the sample drawings: each lists with its own rows, the
// class the drawing's class list gives it, and edits of its rows are
// refused with a sentence, the file saved back unchanged.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbProxyEntity.h"
#include <QFile>

namespace {

class ProxyEntityTest : public ZqDrawingTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(ProxyEntityTest, ProxiesShowTheirClassAndRefuseEdits) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + GetParam();
  // The reference: the CLASSES section read by ezdxf, each proxy's class
  // number taken from the file's own lines.
  int code = -1;
  const QMap<QString, QStringList> reference = zqPythonRowsByHandle(
      "import sys, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "classes = list(doc.classes)\n"
      "lines = [l.strip() for l in open(sys.argv[1], encoding='utf-8', errors='replace')]\n"
      "i = 0\n"
      "while i < len(lines) - 1:\n"
      "    if lines[i] == '0' and lines[i + 1] == 'ACAD_PROXY_ENTITY':\n"
      "        j, handle, number = i + 2, None, None\n"
      "        while lines[j] != '0':\n"
      "            if lines[j] == '5': handle = lines[j + 1]\n"
      "            if lines[j] == '91': number = int(lines[j + 1])\n"
      "            j += 2\n"
      "        c = classes[number - 500] if number and number - 500 < len(classes) else None\n"
      "        print(handle, c.dxf.cpp_class_name if c else 'Unknown', c.dxf.flags if c else 0)\n"
      "        i = j\n"
      "    else:\n"
      "        i += 1\n",
      {path}, &code);
  ASSERT_EQ(code, 0);
  ASSERT_FALSE(reference.isEmpty());
  QString error;
  db = OdDxf::readDrawing(path, error);
  ASSERT_TRUE(db) << error.toStdString();
  CZqPropertiesWindowService service(db.get());
  for (auto it = reference.cbegin(); it != reference.cend(); ++it) {
    SCOPED_TRACE(it.key().toStdString());
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(it.key().toULongLong(nullptr, 16)));
    ASSERT_FALSE(id.isNull());
    OdDbObjectPtr obj = id.openObject();
    ASSERT_EQ(zqProviderFor(obj.get())->isA()->name().qstring(), "CZqProxyEntityPE");
    obj.release();
    EXPECT_EQ(get(id, "Misc", "Original class name").GetString().qstring(), it.value()[1]);
    EXPECT_EQ(openAs<OdDbProxyEntity>(id)->proxyFlags(), it.value()[2].toInt());
    service.SetSelection(OdDbObjectIdArray{id});
    for (const char* row : {"Original class name", "Application"}) {
      const std::vector<CZqEditResult> results = service.SetValue(CZqString("Misc"), CZqString(row), CZqVariant("X"));
      ASSERT_EQ(results.size(), 1u);
      EXPECT_EQ(results[0].code, kZqSetRefused);
      EXPECT_TRUE(results[0].message.qstring().endsWith("is read-only.")) << results[0].message.qstring().toStdString();
    }
  }
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(OdDxf::writeDrawing(db.get()) == file.readAll());
}

INSTANTIATE_TEST_SUITE_P(Samples, ProxyEntityTest,
                         ::testing::Values("libredwg__test__test-data__2013__gh109_1.dxf",
                                           "libredwg__test__test-data__example_r14.dxf"));

}  // namespace
