#pragma once
// A streaming JSON writer. A listing of a large drawing has millions of
// rows; building them as QJsonObjects first costs several times more than
// writing them out, so listings are written as they are produced. Readers
// (the tests among them) use QJsonDocument.
#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QVariant>
#include <string>
#include <string_view>
#include <vector>

class ZqJsonWriter {
 public:
  explicit ZqJsonWriter(QIODevice& out) : m_out(out) { m_buffer.reserve(kFlushAt + 4096); }
  ~ZqJsonWriter() { flush(); }

  ZqJsonWriter& beginObject();
  ZqJsonWriter& endObject();
  ZqJsonWriter& beginArray();
  ZqJsonWriter& endArray();
  // The key of the next member of the current object.
  ZqJsonWriter& key(const char* latin1Key);
  ZqJsonWriter& key(const QString& key);
  // A key given as its JSON text, quotes included ("\"text\""): written as it is.
  ZqJsonWriter& quotedKey(std::string_view json);

  ZqJsonWriter& value(const QString& s);
  ZqJsonWriter& value(const char* latin1);
  // Doubles are written with the fewest digits that read back to the same
  // value; NaN and infinities, which JSON cannot hold, as null.
  ZqJsonWriter& value(double d);
  ZqJsonWriter& value(int i);
  ZqJsonWriter& value(bool b);
  ZqJsonWriter& null();
  // Numbers, strings, bools, null and (nested) lists of them.
  ZqJsonWriter& value(const QVariant& v);

  // Prepared JSON text that a listing writes for many objects alike: the
  // start of a member object up to and including the key of its next
  // member, as in `"k":{"a":1,"b":` (quoteTo writes its strings).
  ZqJsonWriter& objectHead(std::string_view json);
  // A whole value given as its JSON text (an array made once and written
  // for many objects): written as it is.
  ZqJsonWriter& rawValue(std::string_view json);
  // Appends text as a quoted, escaped JSON string to out.
  static void quoteTo(std::string& out, const QString& text);
  static void quoteTo(std::string& out, const char* latin1);

  void flush();

 private:
  static constexpr qsizetype kFlushAt = 1 << 16;
  void separate();
  void raw(const char* s, qsizetype n);
  void maybeFlush();

  QIODevice& m_out;
  std::string m_buffer;  // std::string: appending one character is cheap
  std::vector<char> m_first;  // per open container: no member written yet
  bool m_afterKey = false;
};
