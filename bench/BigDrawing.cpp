#include "BigDrawing.h"
#include "DxfTag.h"

#include <charconv>
#include <cmath>
#include <random>

const QByteArray& zqBigDrawing() {
  static const QByteArray data = zqMakeBigDrawing(kEntities);
  return data;
}

QByteArray zqMakeBigDrawing(int entities) {
  {
    QByteArray out;
    out.reserve(qsizetype(entities) * 210 + (1 << 12));
    auto tag = [&](int code, QByteArrayView value) {
      char buf[8];
      const auto r = std::to_chars(buf, buf + sizeof buf, code);
      for (auto n = r.ptr - buf; n < 3; ++n) out += ' ';
      out.append(buf, r.ptr - buf).append("\r\n").append(value).append("\r\n");
    };
    auto hex = [](quint64 h) { return QByteArray::number(h, 16).toUpper(); };
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> coord(-1e3, 1e3);
    // Coordinates with three decimals, as drawings in millimetres have them.
    auto real = [&] { return OdDxf::formatReal(std::round(coord(rng) * 1e3) / 1e3); };

    tag(0, "SECTION"); tag(2, "HEADER");
    tag(9, "$ACADVER"); tag(1, "AC1015");
    tag(9, "$DWGCODEPAGE"); tag(3, "ANSI_1252");
    tag(9, "$INSUNITS"); tag(70, "     4");
    tag(9, "$HANDSEED"); tag(5, hex(0x100 + quint64(entities)));
    tag(0, "ENDSEC");
    tag(0, "SECTION"); tag(2, "TABLES");
    auto table = [&](const char* name, quint64 h, auto&& records) {
      tag(0, "TABLE"); tag(2, name); tag(5, hex(h)); tag(330, "0"); tag(100, "AcDbSymbolTable"); tag(70, "     1");
      records();
      tag(0, "ENDTAB");
    };
    table("LTYPE", 0x5, [&] {
      int h = 0x14;
      for (const char* n : {"ByBlock", "ByLayer", "Continuous"}) {
        tag(0, "LTYPE"); tag(5, hex(h++)); tag(330, "5"); tag(100, "AcDbSymbolTableRecord");
        tag(100, "AcDbLinetypeTableRecord"); tag(2, n); tag(70, "     0"); tag(3, ""); tag(72, "    65");
        tag(73, "     0"); tag(40, "0.0");
      }
    });
    table("LAYER", 0x2, [&] {
      int h = 0x10;
      for (const char* n : {"0", "Walls", "Doors"}) {
        tag(0, "LAYER"); tag(5, hex(h++)); tag(330, "2"); tag(100, "AcDbSymbolTableRecord");
        tag(100, "AcDbLayerTableRecord"); tag(2, n); tag(70, "     0"); tag(62, "     7"); tag(6, "Continuous");
        tag(370, "    -3");
      }
    });
    table("STYLE", 0x3, [&] {
      tag(0, "STYLE"); tag(5, "13"); tag(330, "3"); tag(100, "AcDbSymbolTableRecord");
      tag(100, "AcDbTextStyleTableRecord"); tag(2, "Standard"); tag(70, "     0"); tag(40, "0.0"); tag(41, "1.0");
      tag(50, "0.0"); tag(71, "     0"); tag(42, "2.5"); tag(3, "txt"); tag(4, "");
    });
    table("BLOCK_RECORD", 0x1, [&] {
      tag(0, "BLOCK_RECORD"); tag(5, "1F"); tag(330, "1"); tag(100, "AcDbSymbolTableRecord");
      tag(100, "AcDbBlockTableRecord"); tag(2, "*Model_Space");
      tag(0, "BLOCK_RECORD"); tag(5, "1B"); tag(330, "1"); tag(100, "AcDbSymbolTableRecord");
      tag(100, "AcDbBlockTableRecord"); tag(2, "*Paper_Space");
    });
    tag(0, "ENDSEC");
    tag(0, "SECTION"); tag(2, "ENTITIES");
    static const char* const kLayers[] = {"0", "Walls", "Doors"};
    static const char* const kTypes[] = {"LINE", "CIRCLE", "LWPOLYLINE", "TEXT"};
    for (int i = 0; i < entities; ++i) {
      tag(0, kTypes[i % 4]);
      tag(5, hex(0x100 + i)); tag(330, "1F"); tag(100, "AcDbEntity"); tag(8, kLayers[i % 3]);
      switch (i % 4) {
        case 0:
          tag(62, "     1"); tag(100, "AcDbLine");
          for (int c : {10, 20, 30, 11, 21, 31}) tag(c, real());
          break;
        case 1:
          tag(100, "AcDbCircle");
          for (int c : {10, 20, 30}) tag(c, real());
          tag(40, "12.5");
          break;
        case 2:
          tag(100, "AcDbPolyline"); tag(90, "       10"); tag(70, "     0"); tag(43, "0.0");
          for (int k = 0; k < 10; ++k) {
            tag(10, real());
            tag(20, real());
          }
          break;
        default:
          tag(100, "AcDbText");
          for (int c : {10, 20, 30}) tag(c, real());
          tag(40, "2.5"); tag(1, "Text " + hex(i)); tag(100, "AcDbText");
      }
    }
    tag(0, "ENDSEC");
    tag(0, "SECTION"); tag(2, "OBJECTS");
    tag(0, "DICTIONARY"); tag(5, "C"); tag(330, "0"); tag(100, "AcDbDictionary"); tag(281, "     1");
    tag(0, "ENDSEC");
    tag(0, "EOF");
    return out;
  }
}
