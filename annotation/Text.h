#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of single-line text: thickness, contents, style,
// justification, height, rotation, width factor, obliquing angle, the
// alignment point and the position in the current UCS, the mirror flags
// and property matching.
class CZqTextPE : public ZqProvider<CZqTextPE> {
  ZQ_PROVIDER(CZqTextPE);
};

class CZqTextInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

class OdDbEntity;
class OdDbObject;
// Copies the text properties of a single-line or multiline source onto a
// single-line or multiline target: the style (brought into the target's
// drawing by name when the two drawings differ), rotation and height; from
// a single-line source to a single-line target also the obliquing angle and
// width factor; from a multiline source to a multiline target also the
// background mask and the attachment. Returns the setter result code.
int ZqMatchTextProperties(const OdDbEntity* source, OdDbObject* target);
