// Fuzz target: the properties-window service on a loaded drawing. The input
// chooses a drawing, a selection of its model-space objects, one of the rows
// the selection shows and the text typed into it:
//   byte 0      the drawing (of zqfuzz::seedDrawings)
//   byte 1      how many objects are picked (1 to 4)
//   bytes 2..   one byte per object picked
//   next byte   the row
//   the rest    the value as typed (UTF-8)
//
// What must hold: the edited drawing saves and the save loads again; an
// object whose edit was refused, and every object not selected, is written
// byte for byte as before.
#include "ZqFuzzSupport.h"
#include "DbPlainClasses.h"
#include "ZQCommandsBase.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool started = zqfuzz::startPlatform(true);
  static const std::vector<QByteArray> drawings = zqfuzz::seedDrawings();
  if (!started || drawings.empty() || size < 4) return 0;
  size_t at = 0;
  const QByteArray& source = drawings[data[at++] % drawings.size()];
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(source, error);
  if (!db) zqfuzz::fail("a seed drawing does not load:", error);

  OdDbObjectIdArray all;
  {
    OdDbObjectPtr ms = db->getModelSpaceId().openObject();
    if (auto space = OdDbBlockTableRecord::cast(ms.get())) all = space->entityIds();
  }
  if (all.isEmpty()) return 0;
  OdDbObjectIdArray selection;
  const int picks = 1 + data[at++] % 4;
  for (int i = 0; i < picks && at < size; ++i) {
    const OdDbObjectId id = all[data[at++] % all.size()];
    if (!selection.contains(id)) selection.append(id);
  }
  if (at >= size) return 0;
  const uint8_t rowPick = data[at++];
  const QString typed = QString::fromUtf8(reinterpret_cast<const char*>(data + at), qsizetype(size - at));

  const QByteArray before = OdDxf::writeDrawing(db.get());
  CZqPropertiesWindowService service(db.get());
  service.SetSelection(selection);
  const std::vector<CZqPaletteRow> rows = service.Rows();
  if (rows.empty()) return 0;
  const CZqPaletteRow& row = rows[rowPick % rows.size()];
  if (row.readOnly) return 0;
  CZqVariant value;
  if (!service.ParseValue(row, typed, value)) return 0;
  const std::vector<CZqEditResult> results = service.SetValue(row.categoryKey, row.nameKey, value);

  QString writeError;
  const QByteArray after = OdDxf::writeDrawing(db.get(), &writeError);
  if (!writeError.isEmpty()) {
    // The save refused what it cannot hold; an edit the drawing cannot keep
    // should have been refused when it was made.
    zqfuzz::fail("an accepted edit cannot be saved:", row.nameKey.qstring() + " = " + typed + ": " + writeError);
  }
  QString again;
  if (!OdDxf::readDrawing(after, again)) zqfuzz::fail("the edited drawing does not load again:", again);

  const QHash<quint64, QByteArray> old = zqfuzz::entityRecords(before), now = zqfuzz::entityRecords(after);
  QHash<quint64, bool> changeable;
  for (const CZqEditResult& r : results)
    if (r.code != kZqSetRefused) changeable.insert(r.id.getHandle().value(), true);
  for (auto it = old.cbegin(); it != old.cend(); ++it) {
    if (changeable.contains(it.key())) continue;
    if (now.value(it.key()) != it.value())
      zqfuzz::fail("an object not edited changed:", QString::number(it.key(), 16) + " by " + row.nameKey.qstring() + " = " + typed);
  }
  return 0;
}
