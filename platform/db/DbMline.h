#pragma once
// The multiline: parallel lines (the elements of its style) along a chain
// of vertices. Each vertex keeps the direction of the segment that starts
// there, the miter direction the elements turn along and, per element, the
// distance along the miter to the element (its first parameter) followed by
// the element's break parameters, and its area fill parameters.
#include "DbEntity.h"
#include "DbSpline.h"

namespace Mline {
enum MlineJustification { kTop = 0, kZero = 1, kBottom = 2 };
}

class DB_API OdDbMline : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbMline);

 public:
  struct Vertex {
    OdGePoint3d position;
    OdGeVector3d direction, miter;
    OdArray<OdArray<double>> params, fillParams;  // per element
  };
  static OdSmartPtr<OdDbMline> createObject();
  OdDbMline();

  // The name of the multiline style, as the record names it.
  OdString styleName() const { assertReadEnabled(); return m_styleName; }
  void setStyleName(const OdString& name);
  // The element offsets the style gives (empty when not known).
  const OdArray<double>& styleOffsets() const { assertReadEnabled(); return m_styleOffsets; }
  void setStyleOffsets(const OdArray<double>& offsets);

  Mline::MlineJustification justification() const { assertReadEnabled(); return m_just; }
  double scale() const { assertReadEnabled(); return m_scale; }
  bool isClosed() const { assertReadEnabled(); return m_flags & 2; }
  int flags() const { assertReadEnabled(); return m_flags; }
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  unsigned numVertices() const { assertReadEnabled(); return m_vertices.length(); }
  unsigned numElements() const;
  const Vertex& vertexData(unsigned index) const;
  OdGePoint3d vertexAt(unsigned index) const { return vertexData(index).position; }

  // As the file gives them: no geometry is worked out.
  void setData(Mline::MlineJustification just, double scale, int flags, const OdGeVector3d& normal,
               const OdArray<Vertex>& vertices);

  // Edits that keep the elements' offsets from the line: a new scale or
  // justification moves the elements along the miters; a moved vertex or a
  // change of closure works the directions and miters out again. A scale of
  // 0 and a justification the offsets are not known for raise
  // OdError(eInvalidInput).
  void setScale(double scale);
  void setJustification(Mline::MlineJustification just);
  void setClosed(bool closed);
  void setVertexAt(unsigned index, const OdGePoint3d& p);
  // The offset of each element from the justification line (scale applied),
  // read from the first vertex.
  OdArray<double> elementOffsets() const;
  // The length of the justification line.
  double length() const;

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  void placeElements(const OdArray<double>& offsets);
  void rebuild(const OdArray<double>& offsets);
  OdString m_styleName;
  OdArray<double> m_styleOffsets;
  Mline::MlineJustification m_just = Mline::kTop;
  double m_scale = 1;
  int m_flags = 1;
  OdGeVector3d m_normal{0, 0, 1};
  OdArray<Vertex> m_vertices;
};
using OdDbMlinePtr = OdSmartPtr<OdDbMline>;
