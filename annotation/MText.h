#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"
#include <QString>

// Properties of multiline text: its contents (with their formatting codes,
// and as plain text), style, attachment, drawing direction, height, width,
// rotation, line spacing, background mask, columns (as the file holds them),
// the location in the current UCS and property matching.
class CZqMTextPE : public ZqProvider<CZqMTextPE> {
  ZQ_PROVIDER(CZqMTextPE);
};

class CZqMTextInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// The text a reader sees in multiline contents: paragraph breaks as line
// breaks, special characters (%%d, \U+XXXX, ...) as characters, stacked
// fractions as "a/b", and every formatting code and group brace left out.
QString ZqMTextPlainText(const QString& contents);
