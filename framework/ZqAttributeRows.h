#pragma once
// The rows that attributes and attribute definitions share: the tag, the
// value (the text string), and the flags (invisible, constant, verify,
// preset), the lock position and the multiline kind. A is
// OdDbAttributeDefinition or OdDbAttribute.
#include "ZqCallbacks.h"
#include "DbRelease.h"

namespace ZqAttributeLike {

template <class A>
CZqVariant getTag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* a = ZqReadable<A>(object);
  return a ? CZqVariant(CZqString(a->tag())) : CZqVariant();
}

// A tag is one word: not empty, no blanks, no control characters.
template <class A>
int setTag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  A* a = ZqWritable<A>(object);
  if (!a || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString tag = value.GetString().qstring();
  bool word = !tag.isEmpty();
  for (const QChar c : tag) word = word && !c.isSpace() && c.category() != QChar::Other_Control;
  if (!word) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "An attribute tag must be one word without blanks"));
  if (tag != a->tag().qstring()) a->setTag(OdString(tag));
  return kZqSetApplied;
}

template <class A>
CZqVariant getValue(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* a = ZqReadable<A>(object);
  return a ? CZqVariant(CZqString(a->textString())) : CZqVariant();
}

// The value of a single-line attribute is one line.
template <class A>
int setValue(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  A* a = ZqWritable<A>(object);
  if (!a || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "An attribute value is one line: it cannot contain line breaks or control characters"));
  if (s != a->textString().qstring()) a->setTextString(OdString(s));
  return kZqSetApplied;
}

template <class A> constexpr auto getInvisible = ZqGetFlag<A, &A::isInvisible, kZqYesNo>;
template <class A> constexpr auto setInvisible = ZqSetFlag<A, &A::setInvisible, kZqYesNo>;
template <class A> constexpr auto getConstant = ZqGetFlag<A, &A::isConstant, kZqYesNo>;
template <class A> constexpr auto getVerify = ZqGetFlag<A, &A::isVerifiable, kZqYesNo>;
template <class A> constexpr auto getPreset = ZqGetFlag<A, &A::isPreset, kZqYesNo>;
template <class A> constexpr auto getLock = ZqGetFlag<A, &A::lockPositionInBlock, kZqYesNo>;

// Files before R2010 have no place for the lock: locking is refused there.
template <class A>
int setLock(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  constexpr int kLockRelease = 1024;  // R2010
  A* a = ZqWritable<A>(object);
  int32_t tag = 0;
  if (!a || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag != 0 && tag != 1) return kZqSetApplied;
  if (tag == 1 && !a->lockPositionInBlock())
    if (const int refused = ZqRefuseBeforeRelease(
            a, kLockRelease, QT_TRANSLATE_NOOP("errors", "Locking the position of an attribute needs a drawing saved as %1 or later; this drawing is %2.")))
      return refused;
  a->setLockPositionInBlock(tag == 1);
  return kZqSetApplied;
}

}  // namespace ZqAttributeLike

#define ZQ_ATTRIBUTE QT_TRANSLATE_NOOP("property_groups", "Attribute")
