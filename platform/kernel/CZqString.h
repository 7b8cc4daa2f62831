#pragma once
// The host's string type: Unicode text that converts freely to and from
// QString and the drawing platform's OdString.
#include "KernelExport.h"
#include "OdString.h"
#include <QString>

class ZQKERNEL_API CZqString {
 public:
  CZqString() = default;
  CZqString(const QString& s) : m_s(s) {}
  CZqString(const char* utf8) : m_s(QString::fromUtf8(utf8)) {}
  CZqString(const wchar_t* w) : m_s(QString::fromWCharArray(w)) {}
  CZqString(const OdString& s) : m_s(s.qstring()) {}

  operator QString() const { return m_s; }
  operator OdString() const { return OdString(m_s); }
  const QString& qstring() const { return m_s; }
  OdString toOdString() const { return OdString(m_s); }
  bool isEmpty() const { return m_s.isEmpty(); }

  friend bool operator==(const CZqString& a, const CZqString& b) { return a.m_s == b.m_s; }
  friend bool operator!=(const CZqString& a, const CZqString& b) { return a.m_s != b.m_s; }

 private:
  QString m_s;
};
