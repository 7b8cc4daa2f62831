// Entities: the class of an entity record, the properties every entity has,
// extended data and hyperlinks, and the table of classes whose own data is
// mapped (one fields function per class).
#include "DbPlainClasses.h"
#include "DxfMapping.h"
#include "OdResBuf.h"
#include "DbRelease.h"
#include <QCoreApplication>

#include <string_view>
#include <unordered_map>

namespace OdDxf::mapping {

QString recordName(const OdDbObjectId& id) {
  OdDbObjectPtr obj = id.openObject(OdDb::kForRead, true);
  auto* rec = odrxCast<OdDbSymbolTableRecord>(obj.get());
  return rec ? rec->getName().qstring() : QString();
}

// ---------------------------------------------------------------------------
// Class of a record

OdRxClass* entityClass(const Record& r) {
  static const std::unordered_map<std::string_view, OdRxClass* (*)()> byName = [] {
    std::unordered_map<std::string_view, OdRxClass* (*)()> m;
#define ODDB_CLASS(Class, Parent, DxfName, RegisteredIndex, Concrete) \
  if (Concrete && std::string_view(DxfName).size() > 0) m.emplace(std::string_view(DxfName), &Class::desc);
#define ODDB_PLAIN_CLASS ODDB_CLASS
#include "DbClasses.def"
    return m;
  }();
  const QByteArrayView type = r.type();
  auto flags = [&](int code) {
    const int i = r.find(code);
    return i < 0 ? 0 : int(r.at(i).integer());
  };
  if (type == "DIMENSION") {
    switch (flags(70) & 7) {
      case 1: return OdDbAlignedDimension::desc();
      case 2: return OdDb2LineAngularDimension::desc();
      case 3: return OdDbDiametricDimension::desc();
      case 4: return OdDbRadialDimension::desc();
      case 5: return OdDb3PointAngularDimension::desc();
      case 6: return OdDbOrdinateDimension::desc();
      default: return OdDbRotatedDimension::desc();
    }
  }
  if (type == "POLYLINE") {
    const int f = flags(70);
    if (f & 8) return OdDb3dPolyline::desc();
    if (f & 16) return OdDbPolygonMesh::desc();
    if (f & 64) return OdDbPolyFaceMesh::desc();
    return OdDb2dPolyline::desc();
  }
  if (type == "INSERT") return flags(70) > 1 || flags(71) > 1 ? OdDbMInsertBlock::desc() : OdDbBlockReference::desc();
  const auto it = byName.find(std::string_view(type.data(), size_t(type.size())));
  if (it != byName.end()) {
    OdRxClass* cls = it->second();
    if (cls->isDerivedFrom(OdDbEntity::desc())) return cls;
  }
  return OdDbProxyEntity::desc();
}

// ---------------------------------------------------------------------------
// Properties every entity has

namespace {

OdDbObjectId lookup(Context& ctx, NameIndex& index, const QString& name) {
  OdDbObjectId id = index.find(name);
  if (id.isNull() && !ctx.quiet && ctx.missingRecord) id = ctx.missingRecord(index, name);
  return id;
}

// The palette index nearest to a true colour, for the 62 that goes with 420.
int nearestIndex(const OdCmColor& c) {
  int best = 7;
  long bestDist = LONG_MAX;
  for (int i = 1; i <= 255; ++i) {
    uint8_t r, g, b;
    OdCmColor::paletteRGB(i, r, g, b);
    const long d = long(r - c.red()) * (r - c.red()) + long(g - c.green()) * (g - c.green()) +
                   long(b - c.blue()) * (b - c.blue());
    if (d < bestDist) {
      bestDist = d;
      best = i;
    }
  }
  return best;
}

}  // namespace

OdCmColor readColor(RecordIO& io, bool allowNegative) {
  const qint64 aci = io.integer(62, 256);
  const int tc = io.find(420);
  if (tc >= 0) {
    const quint32 rgb = quint32(io.integerAt(tc));
    return OdCmColor::fromRGB(uint8_t(rgb >> 16), uint8_t(rgb >> 8), uint8_t(rgb));
  }
  const qint64 v = allowNegative && aci < 0 ? -aci : aci;
  if (v == 0) return OdCmColor::byBlock();
  if (v >= 1 && v <= 255) return OdCmColor::fromIndex(int(v));
  if (v != 256)
    io.warn(io.find(62), QStringLiteral("colour %1 is not a colour index; ByLayer used").arg(aci));
  return OdCmColor::byLayer();
}

// Writes the colour's 62 (and, further on, 420/430) for an entity or layer.
// `sign` is -1 for a layer that is off.
void writeColorIndex(RecordIO& io, const OdCmColor& c, int sign, bool create) {
  if (create && c.isByLayer() && sign > 0) return;
  const int aci = c.isByColor() ? nearestIndex(c) : c.colorIndex();
  io.putInteger(62, qint64(sign) * aci);
}

void writeTrueColor(RecordIO& io, const OdCmColor& c) {
  if (c.isByColor() && io.supports(1018))
    io.putInteger(420, qint64((quint32(c.red()) << 16) | (quint32(c.green()) << 8) | c.blue()));
  else
    io.remove(420);
  io.remove(430);  // a colour book name belongs to the colour replaced
}

// A value the file's release has no group for cannot be saved: the save is
// refused (the old file stays whole) rather than the value dropped.
[[noreturn]] void refuseForRelease(const RecordIO& io, const char* what, int release) {
  throw MapError{QCoreApplication::translate("OdDxf", "%1 needs a drawing saved as %2 or later; this one is saved as %3.")
                     .arg(QCoreApplication::translate("OdDxf", what), OdDb::releaseName(release),
                          OdDb::releaseName(io.ctx().release))};
}

namespace {

OdDbObjectId effectiveLinetype(Context& ctx, const OdDbObjectId& id) {
  return id.isNull() ? ctx.byLayerLinetype() : id;
}

}  // namespace

void readOrWriteLinetype(RecordIO& io, int code, OdDbObjectId current, OdDbObjectId before,
                         const std::function<void(const OdDbObjectId&)>& set) {
  Context& ctx = io.ctx();
  if (io.reading()) {
    const QString name = io.string(code);
    set(name.isEmpty() ? effectiveLinetype(ctx, OdDbObjectId()) : lookup(ctx, ctx.linetypes, name));
    return;
  }
  const OdDbObjectId now = effectiveLinetype(ctx, current);
  const bool byLayer = now == ctx.byLayerLinetype();
  if (io.mode() == RecordIO::Create ? byLayer : now == effectiveLinetype(ctx, before)) {
    io.skip(code);
  } else if (byLayer && !io.has(code)) {
    // ByLayer is what an absent linetype means.
  } else {
    io.putString(code, recordName(now));
  }
}

void entityCommonFields(RecordIO& io, OdDbEntity* e, const OdDbEntity* before) {
  Context& ctx = io.ctx();
  const bool create = io.mode() == RecordIO::Create;
  Fields<OdDbEntity> f(io, e, before);
  io.subclass("AcDbEntity");
  io.skip(67);

  // 8 layer
  if (io.reading()) {
    const int li = io.find(8);
    const QByteArrayView raw = li >= 0 ? io.record().at(li).raw() : QByteArrayView("0");
    if (ctx.lastLayer.isNull() || raw != ctx.lastLayerName) {
      QString name = li >= 0 ? io.record().str(li) : QStringLiteral("0");
      if (name.isEmpty()) name = QStringLiteral("0");
      ctx.lastLayer = lookup(ctx, ctx.layers, name);
      ctx.lastLayerName = raw.toByteArray();
    }
    e->setLayer(ctx.lastLayer);
  } else if (create || e->layerId() != before->layerId()) {
    const QString name = recordName(e->layerId());
    io.putString(8, name.isEmpty() ? QStringLiteral("0") : name);
  } else {
    io.skip(8);
  }

  // 6 linetype
  readOrWriteLinetype(io, 6, io.reading() ? OdDbObjectId() : e->linetypeId(),
                      before ? before->linetypeId() : OdDbObjectId(),
                      [&](const OdDbObjectId& id) { e->setLinetype(id); });
  io.skip(347);

  // 62 colour (420/430 further on)
  bool colorChanged = false;
  if (io.reading()) {
    e->setColor(readColor(io, true));
  } else if (create || e->color() != before->color()) {
    colorChanged = true;
    writeColorIndex(io, e->color(), 1, create);
  } else {
    io.skip(62);
  }

  if (io.reading() || io.supports(1015))
    f.integer(370, &OdDbEntity::lineWeight, &OdDbEntity::setLineWeight, OdDb::kLnWtByLayer, Opt::Optional);
  else if (create ? e->lineWeight() != OdDb::kLnWtByLayer : e->lineWeight() != before->lineWeight())
    refuseForRelease(io, QT_TRANSLATE_NOOP("OdDxf", "Lineweight"), 1015);
  if (!io.reading() && !io.supports(1012) &&
      (create ? e->linetypeScale() != 1.0 : e->linetypeScale() != before->linetypeScale()))
    refuseForRelease(io, QT_TRANSLATE_NOOP("OdDxf", "Linetype scale"), 1012);
  if (io.reading() || io.supports(1012)) {
    f.real(48, &OdDbEntity::linetypeScale, &OdDbEntity::setLinetypeScale, 1.0, Opt::Optional);
    f.integer(
        60, [](const OdDbEntity* x) { return x->visibility() ? 0 : 1; },
        [](OdDbEntity* x, int v) { x->setVisibility(v == 0); }, 0, Opt::Optional);
  }

  if (!io.reading()) {
    if (colorChanged) {
      if (e->color().isByColor() && !io.supports(1018)) refuseForRelease(io, QT_TRANSLATE_NOOP("OdDxf", "A true colour"), 1018);
      writeTrueColor(io, e->color());
    } else {
      io.skip(420);
      io.skip(430);
    }
  }

  // 440 transparency
  if (io.reading()) {
    if (io.has(440)) e->setTransparency(OdCmTransparency::fromPacked(int32_t(io.integer(440, 0))));
  } else if (create ? !e->transparency().isByLayer() : !(e->transparency() == before->transparency())) {
    if (e->transparency().isByLayer())
      io.remove(440);
    else if (io.supports(1018))
      io.putInteger(440, e->transparency().packed());
    else
      refuseForRelease(io, QT_TRANSLATE_NOOP("OdDxf", "Transparency"), 1018);
  } else {
    io.skip(440);
  }

  // 390 plot style, by the handle of its name's placeholder object
  if (io.reading()) {
    if (const quint64 h = io.handle(390)) {
      const QString name = ctx.plotStyleNames.value(h);
      if (!name.isEmpty()) e->setPlotStyleName(name);
    }
  } else if (create ? !e->plotStyleName().isEmpty() : e->plotStyleName() != before->plotStyleName()) {
    const QString name = e->plotStyleName().qstring();
    if (name.isEmpty()) {
      io.remove(390);
    } else {
      const quint64 h = ctx.plotStyleHandles.value(name.toCaseFolded());
      if (!h || !io.supports(1015))
        throw MapError{QStringLiteral("plot style '%1' is not one of the drawing's plot style names").arg(name)};
      io.putHandle(390, h);
    }
  } else {
    io.skip(390);
  }
}

// ---------------------------------------------------------------------------
// Extended data and hyperlinks

void xdataFields(RecordIO& io, OdDbObject* obj, const OdDbObject* before, const QStringList& exclude) {
  if (io.reading()) {
    if (OdResBufPtr chain = io.xdata(exclude)) obj->setXData(chain.get());
    return;
  }
  auto apps = [&](const OdDbObject* o) {
    QStringList out;
    if (o)
      for (const OdString& a : o->xDataApps())
        if (!exclude.contains(a.qstring(), Qt::CaseInsensitive)) out.append(a.qstring());
    return out;
  };
  const QStringList now = apps(obj), was = apps(before);
  for (const QString& app : was)
    if (!now.contains(app, Qt::CaseInsensitive)) io.putXdataOf(app, nullptr);
  for (const QString& app : now) {
    const OdResBufPtr a = obj->xData(app);
    const OdResBufPtr b = before ? before->xData(app) : OdResBufPtr();
    if (!b || !OdResBuf::chainsEqual(a.get(), b.get())) io.putXdataOf(app, a->next());
  }
}

namespace {

const QString kUrlApp = QStringLiteral("PE_URL");

// PE_URL: 1000 address, then in braces 1000 description and 1000 sub-location.
OdArray<OdDbHyperlink> readHyperlinks(const OdResBuf* items) {
  OdArray<OdDbHyperlink> out;
  QStringList texts;
  for (const OdResBuf* p = items; p; p = p->next())
    if (p->restype() == OdResBuf::kDxfXdAsciiString) texts.append(p->getString().qstring());
  if (texts.isEmpty()) return out;
  OdDbHyperlink link;
  link.name = texts.value(0);
  link.description = texts.value(1);
  link.subLocation = texts.value(2);
  out.append(link);
  return out;
}

OdResBufPtr hyperlinkItems(const OdDbHyperlink& link) {
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, link.name);
  if (!link.description.isEmpty() || !link.subLocation.isEmpty()) {
    OdResBuf* tail = head->setNext(OdResBuf::newRb(OdResBuf::kDxfXdControlString, "{").get());
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, link.description).get());
    if (!link.subLocation.isEmpty())
      tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, link.subLocation).get());
    tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdControlString, "}").get());
  }
  return head;
}

}  // namespace

void entityXdataFields(RecordIO& io, OdDbEntity* e, const OdDbEntity* before) {
  if (io.reading()) {
    if (OdResBufPtr url = io.xdataOf(kUrlApp)) {
      try {
        e->setHyperlinks(readHyperlinks(url.get()));
      } catch (const OdError& err) {
        // A tab (or, in binary DXF, a line break) in the file's hyperlink:
        // its tags stay in the file as they are; the entity shows none.
        io.warn(0, QStringLiteral("hyperlink not read (%1); kept in the file as it is").arg(err.description().qstring()));
      }
    }
  } else {
    const OdArray<OdDbHyperlink>& now = e->hyperlinks();
    const bool changed = before ? !(now == before->hyperlinks()) : !now.isEmpty();
    // The file holds one hyperlink per entity: the first.
    if (changed) io.putXdataOf(kUrlApp, now.isEmpty() ? nullptr : hyperlinkItems(now[0]).get());
  }
  xdataFields(io, e, before, QStringList{kUrlApp});
}

// ---------------------------------------------------------------------------
// Classes whose own data is mapped. A class's fields are listed in the order
// the DXF reference gives its group codes.

namespace {

// clang-format off
//                                 record        class                   since  fields                                             sequence
constexpr ClassMapping kEntities[] = {
    {"LINE",       &OdDbLine::desc,        0,    &fieldsOf<OdDbLine, lineFields>,                   false},
    {"CIRCLE",     &OdDbCircle::desc,      0,    &fieldsOf<OdDbCircle, circleFields>,               false},
    {"ARC",        &OdDbArc::desc,         0,    &fieldsOf<OdDbArc, arcFields>,                     false},
    {"ELLIPSE",    &OdDbEllipse::desc,     1012, &fieldsOf<OdDbEllipse, ellipseFields>,             false},
    {"SPLINE",     &OdDbSpline::desc,      1012, &fieldsOf<OdDbSpline, splineFields>,               false},
    {"LWPOLYLINE", &OdDbPolyline::desc,    1014, &fieldsOf<OdDbPolyline, lwpolylineFields>,         false},
    {"POLYLINE",   &OdDb2dPolyline::desc,  0,    &fieldsOf<OdDb2dPolyline, polyline2dFields>,       true},
    {"POLYLINE",   &OdDb3dPolyline::desc,  0,    &fieldsOf<OdDb3dPolyline, polyline3dFields>,       true},
    {"POLYLINE",   &OdDbPolyFaceMesh::desc, 0,   &fieldsOf<OdDbPolyFaceMesh, polyFaceMeshFields>,   true},
    {"POLYLINE",   &OdDbPolygonMesh::desc, 0,    &fieldsOf<OdDbPolygonMesh, polygonMeshFields>,     true},
    // Subdivision meshes: only the smoothness level is written; new ones cannot be.
    {"MESH",       &OdDbSubDMesh::desc,    0,    &fieldsOf<OdDbSubDMesh, subDMeshFields>,           false, true},
    // Multilines: new ones cannot be written (they need a style record).
    {"MLINE",      &OdDbMline::desc,       1012, &fieldsOf<OdDbMline, mlineFields>,                 false, true},
    {"SHAPE",      &OdDbShape::desc,       0,    &fieldsOf<OdDbShape, shapeFields>,                 false},
    {"POINT",      &OdDbPoint::desc,       0,    &fieldsOf<OdDbPoint, pointFields>,                 false},
    {"3DFACE",     &OdDbFace::desc,        0,    &fieldsOf<OdDbFace, faceFields>,                   false},
    {"SOLID",      &OdDbSolid::desc,       0,    &fieldsOf<OdDbSolid, solidFields>,                 false},
    {"TRACE",      &OdDbTrace::desc,       0,    &fieldsOf<OdDbTrace, traceFields>,                 false},
    {"RAY",        &OdDbRay::desc,         1012, &fieldsOf<OdDbRay, rayFields>,                     false},
    {"XLINE",      &OdDbXline::desc,       1012, &fieldsOf<OdDbXline, xlineFields>,                 false},
    {"TEXT",       &OdDbText::desc,        0,    &fieldsOf<OdDbText, textFields>,                   false},
    {"ATTDEF",     &OdDbAttributeDefinition::desc, 0, &fieldsOf<OdDbAttributeDefinition, attdefFields>, false},
    {"ATTRIB",     &OdDbAttribute::desc,   0,    &fieldsOf<OdDbAttribute, attribFields>,            false},
    {"MTEXT",      &OdDbMText::desc,       1012, &fieldsOf<OdDbMText, mtextFields>,                 false},
    // Modeller data is partly mapped: new objects of these classes cannot be written.
    {"3DSOLID",    &OdDb3dSolid::desc,     0,    &fieldsOf<OdDb3dSolid, solidFields>,               false, true},
    {"BODY",       &OdDbBody::desc,        0,    &fieldsOf<OdDbBody, bodyFields>,                   false, true},
    {"REGION",     &OdDbRegion::desc,      0,    &fieldsOf<OdDbRegion, regionFields>,               false, true},
    {"SURFACE",    &OdDbSurface::desc,     0,    &fieldsOf<OdDbSurface, surfaceFields>,             false, true},
    {"PLANESURFACE", &OdDbPlaneSurface::desc, 0, &fieldsOf<OdDbSurface, surfaceFields>,          false, true},
    {"EXTRUDEDSURFACE", &OdDbExtrudedSurface::desc, 0, &fieldsOf<OdDbExtrudedSurface, extrudedSurfaceFields>, false, true},
    {"REVOLVEDSURFACE", &OdDbRevolvedSurface::desc, 0, &fieldsOf<OdDbRevolvedSurface, revolvedSurfaceFields>, false, true},
    {"SWEPTSURFACE", &OdDbSweptSurface::desc, 0, &fieldsOf<OdDbSweptSurface, sweptSurfaceFields>, false, true},
    {"LOFTEDSURFACE", &OdDbLoftedSurface::desc, 0, &fieldsOf<OdDbLoftedSurface, loftedSurfaceFields>, false, true},
    {"DIMENSION",  &OdDbRotatedDimension::desc,       0, &fieldsOf<OdDbDimension, rotatedDimensionFields>,           false},
    {"DIMENSION",  &OdDbAlignedDimension::desc,       0, &fieldsOf<OdDbDimension, alignedDimensionFields>,           false},
    {"DIMENSION",  &OdDb2LineAngularDimension::desc,  0, &fieldsOf<OdDbDimension, twoLineAngularDimensionFields>,    false},
    {"DIMENSION",  &OdDb3PointAngularDimension::desc, 0, &fieldsOf<OdDbDimension, threePointAngularDimensionFields>, false},
    {"DIMENSION",  &OdDbDiametricDimension::desc,     0, &fieldsOf<OdDbDimension, diametricDimensionFields>,         false},
    {"DIMENSION",  &OdDbRadialDimension::desc,        0, &fieldsOf<OdDbDimension, radialDimensionFields>,            false},
    {"DIMENSION",  &OdDbOrdinateDimension::desc,      0, &fieldsOf<OdDbDimension, ordinateDimensionFields>,          false},
    {"ARC_DIMENSION", &OdDbArcDimension::desc,        1015, &fieldsOf<OdDbDimension, arcDimensionFields>,            false},
    {"LARGE_RADIAL_DIMENSION", &OdDbRadialDimensionLarge::desc, 1015, &fieldsOf<OdDbDimension, largeRadialDimensionFields>, false},
    // Hatches: new ones cannot be written (their loops are only read).
    {"HATCH",      &OdDbHatch::desc,       1012, &fieldsOf<OdDbHatch, hatchFields>,                 false, true},
    // Leaders: the colour of 77 and the block offset of 212 are kept as they are.
    {"LEADER",     &OdDbLeader::desc,      0,    &fieldsOf<OdDbLeader, leaderFields>,               false, true},
    {"TOLERANCE",  &OdDbFcf::desc,         0,    &fieldsOf<OdDbFcf, fcfFields>,                     false},
    // Multileaders: the context data is kept; only the values modelled are patched.
    {"MULTILEADER", &OdDbMLeader::desc,    0,    &fieldsOf<OdDbMLeader, mleaderFields>,             false, true},
    // Viewports: clipping, UCS, grid and lighting are not mapped.
    {"VIEWPORT",   &OdDbViewport::desc,    0,    &fieldsOf<OdDbViewport, viewportFields>,           false, true},
    // Arc-aligned text: its font names and the arc it follows are not mapped.
    {"ARCALIGNEDTEXT", &OdDbArcAlignedText::desc, 1012, &fieldsOf<OdDbArcAlignedText, arcAlignedTextFields>, false, true},
};
// clang-format on

}  // namespace

const ClassMapping* entityMapping(const OdRxClass* cls) {
  for (const ClassMapping& m : kEntities)
    if (m.desc() == cls) return &m;
  if (const ClassMapping* m = blockEntityMapping(cls)) return m;
  return objectEntityMapping(cls);
}

}  // namespace OdDxf::mapping
