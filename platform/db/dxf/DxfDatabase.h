#pragma once
// A DXF drawing read into a drawing database, and the database written back.
//
// Reading builds a new database from a DXF file: the header variables the
// platform models, the symbol tables (layers, linetypes, text styles,
// dimension styles, applications, blocks) and every entity, each as an
// object of the drawing class its DXF name names, in file order, with the
// file's handles. The database keeps the file it was read from (see
// OdDbDatabase::fileData), so that writing it back changes only what was
// edited:
//   * an object that was not modified is written tag for tag as it was read;
//   * a modified object changes only in the tags of the values that differ
//     from the ones its record holds (a tag the record lacks is inserted in
//     its place);
//   * erased objects lose their records; objects added since reading get new
//     records with fresh handles, and $HANDSEED follows;
//   * everything the platform does not model (other sections, objects,
//     unknown entities, extension dictionaries, other applications' extended
//     data, comments) is written as it was read.
//
// A file that is not DXF, is truncated or malformed is refused with one
// message naming the line (ASCII) or byte offset (binary) where reading
// failed; nothing is half-read. Repairs that lose nothing (a duplicate handle
// given a fresh one, $HANDSEED raised above the handles in use, a missing
// ENDSEC or EOF) are made and reported as warnings; they are written back.
#include "DbDatabase.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace OdDxf {

struct ReadOptions {
  // Refuse a drawing that reading would warn about (a real that is not
  // finite, a repair): the first warning becomes the error.
  bool strict = false;
};

// Reads a DXF drawing into a new database. Refuses (null + error naming the
// line or byte offset and what is wrong) a file that is not DXF, is truncated
// or malformed - every tag value is checked against its group code's type,
// in records the platform models or not; never returns a silently empty
// drawing. Safe repairs and doubtful values kept as read (nan, inf) come back
// as warnings naming the line or byte offset.
DB_API OdDbDatabasePtr readDrawing(const QString& path, QString& error, QStringList* warnings = nullptr,
                                   const ReadOptions& options = {});
DB_API OdDbDatabasePtr readDrawing(const QByteArray& bytes, QString& error, QStringList* warnings = nullptr,
                                   const ReadOptions& options = {});

// Writes the database back in the release and form (ASCII/binary) it was read
// from; a database not read from a file is written as ASCII AC1015. Saving
// goes through a temporary file renamed over the target, so a failed save
// leaves an existing file whole. On success the objects count as saved
// (isModified() false).
DB_API bool writeDrawing(OdDbDatabase* db, const QString& path, QString& error);
DB_API QByteArray writeDrawing(OdDbDatabase* db, QString* error = nullptr);

// Makes a drawing read from a file be written as another release from now
// on (`release` as in OdDb::kReleases: 1032 for R2018): $ACADVER changes, and
// text is re-encoded where the new release keeps it in another code page
// (UTF-8 from R2007 on). A drawing of R2000 or later can move to any newer
// release, whose files have the same structure; older files lack what R2000
// needs, and an older release would lose values, so both are refused. False
// with a sentence in `error` when refused; nothing changes then.
DB_API bool setSaveRelease(OdDbDatabase* db, int release, QString& error);

}  // namespace OdDxf
