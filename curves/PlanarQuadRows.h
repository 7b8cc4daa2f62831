#pragma once
// The rows and information lines solids and traces share (the two classes
// hold the same data).
#include "ZqCornerRows.h"
#include "ZqInfoFrame.h"
#include "DbSolid.h"

template <class T>
struct ZqPlanarQuad {
  template <int Axis>
  static CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
    const T* t = ZqReadable<T>(object);
    return t ? ZqDouble(ZqUcsOf(object).wcsToUcs(t->normal())[Axis]) : CZqVariant();
  }
  static constexpr auto getThickness = ZqGetDouble<T, &T::thickness>;
  static constexpr auto setThickness = ZqSetDouble<T, &T::setThickness>;
  template <int Axis> static constexpr auto getCorner = ZqGetCornerCoordinate<T, &T::getPointAt, Axis>;
  template <int Axis> static constexpr auto setCorner = ZqSetCornerCoordinate<T, &T::getPointAt, &T::setPointAt, Axis>;

  static inline const ZqRow kRows[] = {
  //  category     name                                            type            identifier                read-only    get                  set                  icon     visibility
    {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Thickness"), kZqDouble,      nullptr,                  kZqEditable, getThickness,        setThickness,        nullptr, kVisOr4},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex"),    kZqCollection,  ZqGuid::kVertexGUID,      kZqEditable, ZqGetCorners<T>,     ZqSetCorners<T>,     nullptr, kVisXor8},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex X"),  kZqDouble,      ZqGuid::kVertexXGUID,     kZqEditable, getCorner<0>,        setCorner<0>,        nullptr, kVisXor8},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Y"),  kZqDouble,      ZqGuid::kVertexYGUID,     kZqEditable, getCorner<1>,        setCorner<1>,        nullptr, kVisXor8},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Z"),  kZqDouble,      ZqGuid::kVertexZGUID,     kZqEditable, getCorner<2>,        setCorner<2>,        nullptr, kVisXor8},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal X"),  kZqDouble,      nullptr,                  kZqReadOnly, getNormal<0>,        nullptr,             nullptr, kVisKeep},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal Y"),  kZqDouble,      nullptr,                  kZqReadOnly, getNormal<1>,        nullptr,             nullptr, kVisKeep},
    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal Z"),  kZqDouble,      nullptr,                  kZqReadOnly, getNormal<2>,        nullptr,             nullptr, kVisKeep},
  };

  static void print(CZqPrintObjectInfoPE* self, const OdDbObject* object, CZqPrintInfoContext* context) {
    ZqPrintInfoFrame<T>(self, object, context, [&](const T* t) {
      for (unsigned i = 0; i < kZqCorners; ++i) {
        OdGePoint3d p;
        t->getPointAt(i, p);
        context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), p);
      }
      context->PrintDist(QCoreApplication::translate("info_items", "Thickness"), t->thickness());
      if (context->IsPrintInUCS())
        context->PrintVector3D(QCoreApplication::translate("info_items", "Extrusion direction relative to UCS"), t->normal());
    });
  }
};
