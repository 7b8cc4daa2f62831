#include "Blocks.h"
#include "Pictures.h"
#include "ZqInfoFrame.h"
#include "DbImage.h"

namespace {

using I = OdDbRasterImage;

CZqVariant getRotation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const I* image = ZqReadable<I>(object);
  return image ? CZqVariant(ZqUcsAngleOf(object, image->uVector()), false) : CZqVariant();
}

// Turns the picture about its lower left corner in its own plane, which
// must be the XY plane of the current UCS (the angle is measured there).
int setRotation(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                const CZqVariant&) {
  I* image = ZqWritable<I>(object);
  if (!image) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  const OdGeVector3d z = ZqUcsOf(object).ucsToWcs(OdGeVector3d(0, 0, 1));
  const double facing = image->normal().dotProduct(z);
  if (std::fabs(std::fabs(facing) - 1) > 1e-9)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The image does not lie in the XY plane of the current UCS: its rotation cannot be set there."));
  const double delta = v - ZqUcsAngleOf(object, image->uVector());
  if (ZqIsZero(delta)) return kZqSetApplied;
  const OdGeMatrix3d turn = OdGeMatrix3d::rotation(delta, z);
  image->setOrientation(image->position(), turn * image->uVector(), turn * image->vVector());
  return kZqSetApplied;
}

// A size or scale: positive, refused at 0 with a sentence.
template <void (I::*Set)(double)>
int setSize(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
            const CZqVariant&) {
  I* image = ZqWritable<I>(object);
  if (!image) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  (image->*Set)(v);
  return kZqSetApplied;
}

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<I, &I::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<I, &I::position, &I::setPosition, Axis>;
constexpr auto getWidth = ZqGetDouble<I, &I::width>;
constexpr auto getHeight = ZqGetDouble<I, &I::height>;
CZqVariant getScale(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const I* image = ZqReadable<I>(object);
  return image ? CZqVariant(image->scale(), false) : CZqVariant();
}
constexpr auto getName = ZqGetText<I, &I::imageName>;
constexpr auto getPath = ZqGetText<I, &I::imageFilePath>;
constexpr auto getStatus = ZqGetFileStatus<I, &I::isFileFound>;
constexpr auto getBrightness = ZqGetWholeNumber<I, &I::brightness>;
constexpr auto setBrightness = ZqSetWholeNumber<I, &I::setBrightness>;
constexpr auto getContrast = ZqGetWholeNumber<I, &I::contrast>;
constexpr auto setContrast = ZqSetWholeNumber<I, &I::setContrast>;
constexpr auto getFade = ZqGetWholeNumber<I, &I::fade>;
constexpr auto setFade = ZqSetWholeNumber<I, &I::setFade>;
constexpr auto getShow = ZqGetFlag<I, &I::isShown, kZqYesNo>;
constexpr auto setShow = ZqSetFlag<I, &I::setShown, kZqYesNo>;
constexpr auto getClipped = ZqGetFlag<I, &I::isClipped, kZqYesNo>;
constexpr auto setClipped = ZqSetFlag<I, &I::setClipped, kZqYesNo>;
constexpr auto getTransparent = ZqGetFlag<I, &I::isTransparent, kZqYesNo>;
constexpr auto setTransparent = ZqSetFlag<I, &I::setTransparent, kZqYesNo>;

constexpr ZqLimit kSize = ZqMessage(kZqPositive, QT_TRANSLATE_NOOP("errors", "An image's size and scale must be greater than 0."));
constexpr ZqLimit kPercent = ZqRange(0, 100);

const ZqRow kRows[] = {
//  category     name                                                  type           identifier                read-only    get              set                     icon                    visibility limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),    kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>,  setPosition<0>,         "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),    kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>,  setPosition<1>,         "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),    kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>,  setPosition<2>,         "Geometry_CoordinateZ", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Rotation"),      kZqDouble,     ZqGuid::kAngleGUID,       kZqEditable, getRotation,     setRotation,            "Misc_Rotation",        kVisOr4},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Width"),         kZqDouble,     nullptr,                  kZqEditable, getWidth,        setSize<&I::setWidth>,  nullptr,                kVisKeep,  kSize},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Height"),        kZqDouble,     nullptr,                  kZqEditable, getHeight,       setSize<&I::setHeight>, nullptr,                kVisKeep,  kSize},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Scale"),         kZqDouble,     nullptr,                  kZqEditable, getScale,        setSize<&I::setScale>,  nullptr,                kVisOr4,   kSize},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,                  kZqReadOnly, getName,         nullptr,                nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Path"),          kZqString,     nullptr,                  kZqReadOnly, getPath,         nullptr,                nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Status"),        kZqString,     nullptr,                  kZqReadOnly, getStatus,       nullptr,                nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Brightness"),    kZqInt32,      nullptr,                  kZqEditable, getBrightness,   setBrightness,          nullptr,                kVisOr4,   kPercent},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Contrast"),      kZqInt32,      nullptr,                  kZqEditable, getContrast,     setContrast,            nullptr,                kVisOr4,   kPercent},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Fade"),          kZqInt32,      nullptr,                  kZqEditable, getFade,         setFade,                nullptr,                kVisOr4,   kPercent},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Show image"),    kZqCollection, nullptr,                  kZqEditable, getShow,         setShow,                nullptr,                kVisOr4},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Show clipped"),  kZqCollection, nullptr,                  kZqEditable, getClipped,      setClipped,             nullptr,                kVisOr4},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Transparency"),  kZqCollection, nullptr,                  kZqEditable, getTransparent,  setTransparent,         nullptr,                kVisOr4},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqRasterImagePE, QT_TRANSLATE_NOOP("entity_types", "Raster Image"), kRows)

void CZqRasterImageInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<I>(this, object, context, [&](const I* image) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Image name")), CZqString(image->imageName()));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Saved path")), CZqString(image->imageFilePath()));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Status")),
                         CZqString(image->isFileFound() ? QCoreApplication::translate("info_values", "found")
                                                        : QCoreApplication::translate("info_values", "not found")));
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Insertion point")), image->position());
    context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Width")), image->width());
    context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Height")), image->height());
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "Scale")), image->scale());
    context->PrintAngle(item(QT_TRANSLATE_NOOP("info_items", "Rotation")), ZqAngleInXYPlane(context, image->uVector()));
  });
}
