// TEXT, ATTDEF, ATTRIB, MTEXT and the dimension style of dimensions: each class's fields as a table (see
// DxfFields.h), with the code that does not fit one next to it: the
// subclass jumps of the text records, MTEXT's contents in 250-character
// pieces (3 ... 3 1), its direction (11, or a rotation 50 in older writers'
// files) and its background colour.
#include "DbPlainClasses.h"
#include "DxfFields.h"

namespace OdDxf::mapping {
namespace {

using T = OdDbText;
// clang-format off
//                             code kind            member                                                           default opt            table             name
constexpr Field<T> kTextRows[] = {
    {39,  Kind::Real,     member<T, &T::thickness, &T::setThickness>(),                   0,   Opt::Optional},
    {10,  Kind::OcsPoint, member<T, &T::position, &T::setPosition>(),                     0,   Opt::Required},
    {40,  Kind::Real,     member<T, &T::height, &T::setHeight>(),                         0.2, Opt::Required},
    {1,   Kind::String,   member<T, &T::textString, &T::setTextString>(),                 0,   Opt::Required},
    {50,  Kind::Angle,    member<T, &T::rotation, &T::setRotation>(),                     0,   Opt::Optional},
    {41,  Kind::Real,     member<T, &T::widthFactor, &T::setWidthFactor>(),               1,   Opt::Optional},
    {51,  Kind::Angle,    member<T, &T::oblique, &T::setOblique>(),                       0,   Opt::Optional},
    {7,   Kind::Name,     member<T, &T::textStyle, &T::setTextStyle>(),                   0,   Opt::Optional, &Context::styles, "Standard"},
    {71,  Kind::Flag,     member<T, &T::isMirroredInX, &T::mirrorInX>(),                  2},
    {71,  Kind::Flag,     member<T, &T::isMirroredInY, &T::mirrorInY>(),                  4},
    {72,  Kind::Int,      member<T, &T::horizontalMode, &T::setHorizontalMode>(),         0,   Opt::Optional},
    {11,  Kind::OcsPoint, member<T, &T::alignmentPoint, &T::setAlignmentPoint>(),         0,   Opt::Optional},
    {210, Kind::Normal,   member<T, &T::normal, &T::setNormal>()},
};
constexpr Access<T> kTextNormal = member<T, &T::normal, &T::setNormal>();

// The second AcDbText subclass of a TEXT record.
constexpr Field<T> kTextVerticalRows[] = {
    {73,  Kind::Int,      member<T, &T::verticalMode, &T::setVerticalMode>(),             0,   Opt::Optional},
};

using D = OdDbAttributeDefinition;
constexpr Field<D> kAttdefRows[] = {
    {3,   Kind::String,   member<D, &D::prompt, &D::setPrompt>()},
    {2,   Kind::String,   member<D, &D::tag, &D::setTag>()},
    {70,  Kind::Int,      member<D, &D::flags, &D::setFlags>()},
    {73,  Kind::Int,      member<D, &D::fieldLength, &D::setFieldLength>(),               0,   Opt::Optional},
    {74,  Kind::Int,      member<D, &D::verticalMode, &D::setVerticalMode>(),             0,   Opt::Optional},
};

using A = OdDbAttribute;
constexpr Field<A> kAttribRows[] = {
    {2,   Kind::String,   member<A, &A::tag, &A::setTag>()},
    {70,  Kind::Int,      member<A, &A::flags, &A::setFlags>()},
    {73,  Kind::Int,      member<A, &A::fieldLength, &A::setFieldLength>(),               0,   Opt::Optional},
    {74,  Kind::Int,      member<A, &A::verticalMode, &A::setVerticalMode>(),             0,   Opt::Optional},
};

using M = OdDbMText;
// Up to the contents.
constexpr Field<M> kMTextRows[] = {
    {10,  Kind::Point,    member<M, &M::location, &M::setLocation>()},
    {40,  Kind::Real,     member<M, &M::textHeight, &M::setTextHeight>(),                 0.2},
    {41,  Kind::Real,     member<M, &M::width, &M::setWidth>(),                           0},
    {71,  Kind::Int,      member<M, &M::attachment, &M::setAttachment>(),                 1},
    {72,  Kind::Int,      member<M, &M::flowDirection, &M::setFlowDirection>(),           1,   Opt::Optional},
};
// After the contents, up to the direction.
constexpr Field<M> kMTextStyleRows[] = {
    {7,   Kind::Name,     member<M, &M::textStyle, &M::setTextStyle>(),                   0,   Opt::Optional, &Context::styles, "Standard"},
    {210, Kind::Normal,   member<M, &M::normal, &M::setNormal>()},
};
// After the direction, up to the background colour.
constexpr Field<M> kMTextSpacingRows[] = {
    {73,  Kind::Int,      member<M, &M::lineSpacingStyle, &M::setLineSpacingStyle>(),     1,   Opt::Optional},
    {44,  Kind::Real,     member<M, &M::lineSpacingFactor, &M::setLineSpacingFactor>(),   1,   Opt::Optional},
    {90,  Kind::Int,      member<M, &M::backgroundFillFlags, &M::setBackgroundFillFlags>(), 0, Opt::Optional},
};
// After the background colour.
constexpr Field<M> kMTextFillRows[] = {
    {45,  Kind::Real,     member<M, &M::getBackgroundScaleFactor, &M::setBackgroundScaleFactor>(), 1.5, Opt::Optional},
};

using N = OdDbDimension;
constexpr Field<N> kDimensionRows[] = {
    {3,   Kind::Name,     member<N, &N::dimensionStyle, &N::setDimensionStyle>(),         0,   Opt::Optional, &Context::dimstyles, "Standard"},
};
// clang-format on

// The pieces of MTEXT contents: 250 characters each.
constexpr int kPiece = 250;

void contentsField(Fields<M>& f) {
  RecordIO& io = f.io();
  Record& r = io.record();
  if (io.reading()) {
    QString text;
    for (int i = io.find(3); i >= 0; i = io.find(3, i + 1)) text += r.str(i);
    text += io.string(1);
    f.apply(1, [&] { f.object()->setContents(OdString(text)); });
    return;
  }
  if (!f.changed(&M::contents)) {
    // Past the last piece.
    int end = io.find(1);
    for (int i = io.find(3); i >= 0; i = io.find(3, i + 1)) end = qMax(end, i);
    if (end >= 0) io.moveTo(end + 1);
    return;
  }
  // New pieces where the old ones began.
  int at = io.find(3);
  if (at < 0 || (io.find(1) >= 0 && io.find(1) < at)) at = io.find(1);
  for (int i = io.find(3); i >= 0; i = io.find(3)) io.removeAt(i, 1);
  if (const int i = io.find(1); i >= 0) io.removeAt(i, 1);
  if (at >= 0) io.moveTo(at);
  const QString text = f.object()->contents().qstring();
  qsizetype k = 0;
  for (; text.size() - k > kPiece; k += kPiece) r.setString(io.insertTag(3), text.mid(k, kPiece));
  r.setString(io.insertTag(1), text.mid(k));
}

// 11 the direction; files that have none may have a rotation 50 (degrees,
// as other readers take it) or the direction of an embedded object instead.
void directionField(Fields<M>& f) {
  RecordIO& io = f.io();
  M* m = f.object();
  if (io.reading()) {
    if (io.has(11)) {
      const OdGePoint3d d = io.point(11, OdGePoint3d(1, 0, 0));
      f.apply(11, [&] { m->setDirection(OdGeVector3d(d.x, d.y, d.z)); });
    } else if (io.has(50)) {
      const double deg = io.real(50, 0);
      f.apply(50, [&] { m->setRotation(qDegreesToRadians(deg)); });
    } else {
      // An embedded object (101) repeats the text's geometry: its 10 is the
      // direction.
      const Record& r = io.record();
      for (int i = 1; i + 2 < r.size(); ++i)
        if (r.at(i).code() == 101) {
          if (r.at(i + 1).code() == 70 && r.at(i + 2).code() == 10 && i + 4 < r.size() && r.at(i + 3).code() == 20) {
            const OdGeVector3d d(io.realAt(i + 2), io.realAt(i + 3), r.at(i + 4).code() == 30 ? io.realAt(i + 4) : 0.0);
            f.apply(101, [&] { m->setDirection(d); });
          }
          break;
        }
    }
    return;
  }
  const bool changed = f.changed(&M::direction, Opt::Optional);
  const bool useRotation = io.has(50) && !io.has(11);
  if (!changed) {
    io.skip(11, 3);
    return;
  }
  if (useRotation) {
    io.putReal(50, qRadiansToDegrees(m->rotation()));
  } else {
    const OdGeVector3d d = m->direction();
    io.putPoint(11, OdGePoint3d(d.x, d.y, d.z));
  }
}

// 63 the background colour's index, 421 a true colour.
void fillColorField(Fields<M>& f) {
  RecordIO& io = f.io();
  M* m = f.object();
  if (io.reading()) {
    if (const int tc = io.find(421); tc >= 0) {
      const quint32 rgb = quint32(io.integerAt(tc));
      m->setBackgroundFillColor(OdCmColor::fromRGB(uint8_t(rgb >> 16), uint8_t(rgb >> 8), uint8_t(rgb)));
    } else if (io.has(63)) {
      const qint64 aci = io.integer(63, 0);
      if (aci >= 1 && aci <= 255) m->setBackgroundFillColor(OdCmColor::fromIndex(int(aci)));
      else if (aci == 256) m->setBackgroundFillColor(OdCmColor::byLayer());
      else if (aci != 0) io.warn(io.find(63), QStringLiteral("background colour %1 is not a colour index; ByBlock used").arg(aci));
    }
    return;
  }
  const OdCmColor c = m->getBackgroundFillColor();
  if (io.mode() == RecordIO::Create ? c.isByBlock() : c == f.before()->getBackgroundFillColor()) {
    io.skip(63);
    io.skip(421);
    return;
  }
  if (c.isByColor()) {
    if (!io.has(63)) io.putInteger(63, 7);
    else io.skip(63);
    io.putInteger(421, qint64((quint32(c.red()) << 16) | (quint32(c.green()) << 8) | c.blue()));
  } else {
    io.putInteger(63, c.colorIndex());
    io.remove(421);
  }
}

// Columns. An R2018 record keeps them in its embedded object (the tags
// after 101): 71 type, 72 count, 44 width, 45 gutter, 73 auto height, 74
// flow reversed, 41 the defined height. Older records keep them in the ACAD
// extended data, between "ACAD_MTEXT_COLUMN_INFO_BEGIN" and "..._END", as
// pairs of a 1070 item naming the group code and an item with its value,
// and the defined height between "ACAD_MTEXT_DEFINED_HEIGHT_BEGIN" and
// "..._END". The tags stay in the record as they were read; the platform
// has no column layout to write, so a changed one is refused when saving
// rather than lost.
void columnsField(Fields<M>& f) {
  RecordIO& io = f.io();
  M* m = f.object();
  if (!io.reading()) {
    const M* b = f.before();
    const bool same = m->getColumnType() == b->getColumnType() && m->getColumnCount() == b->getColumnCount() &&
                      m->getColumnWidth() == b->getColumnWidth() &&
                      m->getColumnGutterWidth() == b->getColumnGutterWidth() &&
                      m->getColumnHeight() == b->getColumnHeight() &&
                      m->getColumnAutoHeight() == b->getColumnAutoHeight() &&
                      m->getColumnFlowReversed() == b->getColumnFlowReversed();
    if (!same) throw MapError{io.where(0) + QStringLiteral(": the columns of a multiline text cannot be saved")};
    return;
  }
  auto set = [&](int code, double v) {
    f.apply(code, [&] {
      switch (code) {
        case 71: case 75: m->setColumnType(M::ColumnType(int(v))); break;
        case 72: case 76: m->setColumnCount(int(v)); break;
        case 44: case 48: m->setColumnWidth(v); break;
        case 45: case 49: m->setColumnGutterWidth(v); break;
        case 73: case 79: m->setColumnAutoHeight(v != 0); break;
        case 74: case 78: m->setColumnFlowReversed(v != 0); break;
        case 41: case 46: m->setColumnHeight(v); break;
      }
    });
  };
  const Record& r = io.record();
  for (int i = 1; i < r.size(); ++i) {
    if (r.at(i).code() != 101) continue;
    for (int j = i + 1; j < r.size(); ++j) {
      const int code = r.at(j).code();
      if (code == 100 || code == 101 || code >= 1000) break;
      if (code == 41 || code == 44 || code == 45) set(code, io.realAt(j));
      else if (code >= 71 && code <= 74) set(code, double(io.integerAt(j)));
    }
    return;
  }
  const OdResBufPtr acad = io.xdataOf(QStringLiteral("ACAD"));
  enum { None, Info, Height } in = None;
  int pending = -1;  // the group code whose value comes next
  for (const OdResBuf* rb = acad.get(); rb; rb = rb->next()) {
    if (rb->restype() == OdResBuf::kDxfXdAsciiString) {
      const QString word = rb->getString().qstring();
      in = word == QLatin1String("ACAD_MTEXT_COLUMN_INFO_BEGIN")     ? Info
           : word == QLatin1String("ACAD_MTEXT_DEFINED_HEIGHT_BEGIN") ? Height
                                                                       : None;
      pending = -1;
      continue;
    }
    if (in == None) continue;
    const bool real = rb->restype() == OdResBuf::kDxfXdReal;
    if (pending < 0) {
      if (rb->restype() == OdResBuf::kDxfXdInteger16) pending = rb->getInt16();
      continue;
    }
    if (pending == 50) {  // the count of the column heights that follow
      pending = -1;
      continue;
    }
    if ((in == Info || pending == 46) && (real || rb->restype() == OdResBuf::kDxfXdInteger16))
      set(pending, real ? rb->getDouble() : double(rb->getInt16()));
    pending = -1;
  }
}

}  // namespace

void textFields(Fields<OdDbText>& f) {
  f.subclass("AcDbText");
  mapFields(f, kTextRows, kTextNormal);
  f.subclass("AcDbText", 2);
  mapFields(f, kTextVerticalRows);
}

void attdefFields(Fields<OdDbAttributeDefinition>& f) {
  Fields<OdDbText> text(f.io(), f.object(), f.before());
  text.subclass("AcDbText");
  mapFields(text, kTextRows, kTextNormal);
  f.subclass("AcDbAttributeDefinition");
  mapFields(f, kAttdefRows);
}

void attribFields(Fields<OdDbAttribute>& f) {
  Fields<OdDbText> text(f.io(), f.object(), f.before());
  text.subclass("AcDbText");
  mapFields(text, kTextRows, kTextNormal);
  f.subclass("AcDbAttribute");
  mapFields(f, kAttribRows);
}

void dimensionFields(Fields<OdDbDimension>& f) {
  f.subclass("AcDbDimension");
  mapFields(f, kDimensionRows);
}

void mtextFields(Fields<OdDbMText>& f) {
  f.subclass("AcDbMText");
  mapFields(f, kMTextRows);
  contentsField(f);
  mapFields(f, kMTextStyleRows);
  directionField(f);
  mapFields(f, kMTextSpacingRows);
  fillColorField(f);
  mapFields(f, kMTextFillRows);
  columnsField(f);
}

}  // namespace OdDxf::mapping
