// Fuzz target: the DXF reader and writer. Built twice: as fuzz_dxf_ascii the
// input is the file; as fuzz_dxf_binary (ZQ_FUZZ_BINARY) the input follows the
// binary DXF sentinel, so mutations spend their time on tags.
//
// What must hold for every input:
//   * a refused drawing says where reading stopped (line or byte offset);
//   * a drawing that loads can be written, and what is written loads again.
#include "ZqFuzzSupport.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool started = zqfuzz::startPlatform(false);
  if (!started) return 0;
#ifdef ZQ_FUZZ_BINARY
  QByteArray bytes("AutoCAD Binary DXF\r\n\x1a", 22);
  bytes.append(reinterpret_cast<const char*>(data), qsizetype(size));
#else
  const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
#endif
  QString error;
  QStringList warnings;
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error, &warnings);
  if (!db) {
    if (!zqfuzz::namesAPlace(error)) zqfuzz::fail("refusal without a place:", error);
    return 0;
  }
  QString writeError;
  const QByteArray written = OdDxf::writeDrawing(db.get(), &writeError);
  if (!writeError.isEmpty()) return 0;  // refused to write what it cannot hold: said so
  QString again;
  if (!OdDxf::readDrawing(written, again)) zqfuzz::fail("a written drawing does not load again:", again);
  return 0;
}
