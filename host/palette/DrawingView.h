#pragma once
// The drawing view of zqpalette: the entities of model space or of a layout
// as flat outlines (lines, arcs, circles, polylines with widths and bulges,
// text with the font's metrics, dimensions through their blocks, other
// curves sampled along their parameter, and a box for what has only
// extents), a grid index over them for culling and picking, pan, zoom,
// click and window selection.
#include "DbDatabase.h"
#include "OdGeMatrix3d.h"
#include <QHash>
#include <QRectF>
#include <QWidget>
#include <vector>

// The outlines of the entities of one block, with a uniform grid over their
// boxes. Coordinates are the WCS X and Y.
class ZqDrawingGeometry {
 public:
  struct Poly {
    quint32 first = 0, count = 0;  // range in points()
    float width = 0;               // drawing units; 0 is the thinnest line
    bool closed = false;
  };
  struct Text {
    QString text;
    QPointF position;  // baseline start
    double height = 1, rotation = 0, widthFactor = 1;
  };
  struct Item {
    OdDbObjectId id;
    QRectF box;
    quint32 firstPoly = 0, polyCount = 0;
    qint32 firstText = -1, textCount = 0;
    QRgb color = 0xffffffff;
    bool boxOnly = false;   // drawn as its box: nothing else is known of it
    bool unbounded = false; // rays and construction lines: never culled
    bool hasBox = false;
  };

  // The entities of a block record (model space or a layout).
  void build(OdDbDatabase* db, const OdDbObjectId& block);
  // Reads these objects again (after an edit or an undo).
  void update(const OdDbObjectIdArray& ids);

  const std::vector<Item>& items() const { return m_items; }
  const std::vector<QPointF>& points() const { return m_points; }
  const std::vector<Poly>& polys() const { return m_polys; }
  const std::vector<Text>& texts() const { return m_texts; }
  QRectF extents() const { return m_extents; }
  int itemOf(const OdDbObjectId& id) const { return m_byId.value(id.getHandle().value(), -1); }

  // Indices of the items whose box meets the rectangle (unbounded ones too).
  std::vector<int> query(const QRectF& rect) const;
  // The item nearest to a point within tolerance (drawing units), or -1.
  int pick(const QPointF& at, double tolerance) const;
  // Window (every item wholly inside) or crossing (every item that meets it) selection.
  std::vector<int> pickWindow(const QRectF& rect, bool crossing) const;

 private:
  void extract(OdDbDatabase* db, const OdDbEntity* entity, Item& item, int depth);
  void addPoly(Item& item, const std::vector<QPointF>& pts, bool closed, double width = 0);
  void addText(Item& item, const Text& text);
  static void grow(Item& item, const QRectF& r);
  void index(int item);
  void buildGrid();
  double distanceTo(const Item& item, const QPointF& at) const;

  OdDbDatabase* m_db = nullptr;
  // Where the entities being extracted are placed: the product of the
  // block references they are drawn through (identity for the space's own).
  OdGeMatrix3d m_place;
  std::vector<Item> m_items;
  std::vector<QPointF> m_points;
  std::vector<Poly> m_polys;
  std::vector<Text> m_texts;
  QHash<quint64, int> m_byId;
  QRectF m_extents;
  // The grid: m_cols x m_rows cells over m_extents, each listing items.
  int m_cols = 0, m_rows = 0;
  double m_cellW = 1, m_cellH = 1;
  std::vector<std::vector<quint32>> m_cells;
  std::vector<quint32> m_large;      // items spanning many cells, and unbounded ones
  mutable std::vector<quint32> m_stamp;  // per item: the query that saw it last
  mutable quint32 m_query = 0;
};

class ZqDrawingView : public QWidget {
  Q_OBJECT

 public:
  explicit ZqDrawingView(QWidget* parent = nullptr);
  // Shows a block (model space or a layout) of the drawing; zooms to its extents.
  void setBlock(OdDbDatabase* db, const OdDbObjectId& block);
  const ZqDrawingGeometry& geometry() const { return m_geometry; }
  // The highlighted objects.
  void setSelection(const OdDbObjectIdArray& ids);
  const OdDbObjectIdArray& selection() const { return m_selection; }
  // Reads edited objects again and repaints.
  void objectsChanged(const OdDbObjectIdArray& ids);
  void zoomExtents();
  // World (WCS X, Y) and widget coordinates.
  QPointF toScreen(const QPointF& world) const;
  QPointF toWorld(const QPointF& screen) const;
  double scale() const { return m_scale; }

 signals:
  // The user picked objects (a click or a window); the palette follows.
  void selectionChanged(const OdDbObjectIdArray& ids);

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void wheelEvent(QWheelEvent*) override;

 private:
  void choose(const std::vector<int>& items, bool add);

  OdDbDatabase* m_db = nullptr;
  ZqDrawingGeometry m_geometry;
  OdDbObjectIdArray m_selection;
  QHash<quint64, bool> m_selected;
  double m_scale = 1;      // pixels per drawing unit
  QPointF m_center;        // world point at the widget's centre
  bool m_fitted = false;
  QPoint m_pressAt, m_lastAt;
  bool m_panning = false, m_windowing = false;
};
