#pragma once
// Shared helpers of the DXF tag layer tests: the sample drawings, an
// independent line reader and the ezdxf bridge.
#include "DxfFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <cmath>
#include <string>
#include <vector>

namespace dxftest {

inline QString samplePath(const QString& name) { return QStringLiteral(ZQ_SAMPLES_DIR "/") + name; }

inline std::vector<std::string> sampleNames() {
  std::vector<std::string> out;
  for (const QString& n : QDir(QStringLiteral(ZQ_SAMPLES_DIR)).entryList({QStringLiteral("*.dxf")}, QDir::Files))
    out.push_back(n.toStdString());
  return out;
}

inline bool isMalformedSample(const std::string& n) {
  return n.find("recover01") != std::string::npos || n.find("duplicate_handles") != std::string::npos;
}

inline QByteArray readBytes(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// ASCII DXF as (code, value line) pairs, split the plain way: every line ends
// at '\n', one '\r' before it is dropped.
struct LineTag {
  int code;
  QByteArray value;
};
inline std::vector<LineTag> plainTags(const QByteArray& data) {
  std::vector<LineTag> out;
  const QList<QByteArray> lines = data.split('\n');
  for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
    QByteArray value = lines[i + 1];
    if (value.endsWith('\r')) value.chop(1);
    out.push_back({lines[i].trimmed().toInt(), value});
    if (out.back().code == 0 && value.trimmed() == "EOF") break;
  }
  return out;
}

// Compares two tags by group code and typed value.
inline ::testing::AssertionResult sameTypedValue(const OdDxf::Tag& a, const OdDxf::Tag& b, quint16 cp) {
  using OdDxf::ValueType;
  if (a.code() != b.code()) return ::testing::AssertionFailure() << "code " << a.code() << " vs " << b.code();
  bool ok = true;
  switch (a.type()) {
    case ValueType::Double:
      if (a.real() == b.real() || (std::isnan(a.real()) && std::isnan(b.real()))) return ::testing::AssertionSuccess();
      ok = false;
      break;
    case ValueType::Int16:
    case ValueType::Int32:
    case ValueType::Int64:
    case ValueType::Bool: ok = a.integer() == b.integer(); break;
    case ValueType::Binary: ok = a.bytes() == b.bytes(); break;
    default: ok = a.str(cp) == b.str(cp); break;
  }
  if (ok) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "code " << a.code() << ": '" << a.str(cp).toStdString() << "' vs '"
                                       << b.str(cp).toStdString() << "'";
}

// Every tag of the file in order.
inline std::vector<OdDxf::Tag> allTags(const OdDxf::File& f) {
  std::vector<OdDxf::Tag> out;
  auto add = [&](const OdDxf::Record& r) { out.insert(out.end(), r.begin(), r.end()); };
  add(f.prologue());
  for (const OdDxf::Section& s : f.sections()) {
    add(s.head);
    for (const OdDxf::Record& r : s.records) add(r);
    add(s.tail);
  }
  add(f.eof());
  return out;
}

// Runs Python code with the system interpreter that has ezdxf; empty result
// with `ok` false if it is not there or fails.
inline QByteArray runEzdxf(const QString& code, const QStringList& args, bool& ok) {
  QProcess p;
  p.start(QStringLiteral("/usr/bin/python3"), QStringList{QStringLiteral("-c"), code} + args);
  ok = p.waitForFinished(120000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
  return p.readAllStandardOutput();
}

inline bool haveEzdxf() {
  static const bool have = [] {
    bool ok = false;
    runEzdxf(QStringLiteral("import ezdxf"), {}, ok);
    return ok;
  }();
  return have;
}

}  // namespace dxftest
