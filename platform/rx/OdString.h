#pragma once
// The drawing platform's string: Unicode text with value semantics. It keeps a
// QString so that conversion to and from the host's strings costs nothing.
#include <QString>
#include <QHashFunctions>
#include <string>
#include <string_view>
#include <functional>

class OdString {
 public:
  OdString() = default;
  OdString(const char* utf8) : m_s(QString::fromUtf8(utf8)) {}
  OdString(const wchar_t* wide) : m_s(QString::fromWCharArray(wide)) {}
  OdString(std::string_view utf8) : m_s(QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))) {}
  OdString(const std::string& utf8) : m_s(QString::fromStdString(utf8)) {}
  OdString(const QString& s) : m_s(s) {}
  OdString(QString&& s) : m_s(std::move(s)) {}

  static const OdString kEmpty;

  bool isEmpty() const { return m_s.isEmpty(); }
  int getLength() const { return int(m_s.size()); }
  void empty() { m_s.clear(); }

  const QString& qstring() const { return m_s; }
  operator const QString&() const { return m_s; }
  std::string toStdString() const { return m_s.toStdString(); }
  std::wstring toStdWString() const { return m_s.toStdWString(); }

  // Case-insensitive comparison, as symbol-table names are compared.
  int iCompare(const OdString& other) const { return m_s.compare(other.m_s, Qt::CaseInsensitive); }
  OdString makeUpper() const { return OdString(m_s.toUpper()); }

  OdString& operator+=(const OdString& o) { m_s += o.m_s; return *this; }
  friend OdString operator+(const OdString& a, const OdString& b) { return OdString(a.m_s + b.m_s); }
  friend bool operator==(const OdString& a, const OdString& b) { return a.m_s == b.m_s; }
  friend bool operator!=(const OdString& a, const OdString& b) { return a.m_s != b.m_s; }
  friend bool operator<(const OdString& a, const OdString& b) { return a.m_s < b.m_s; }

 private:
  QString m_s;
};

inline const OdString OdString::kEmpty;

template <>
struct std::hash<OdString> {
  size_t operator()(const OdString& s) const noexcept { return qHash(s.qstring(), size_t(0)); }
};
