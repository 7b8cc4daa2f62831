#pragma once
// The drawing database: owns its objects, finds them by id and handle, and
// keeps the drawing's tables and settings (system variables).
#include "DbAnnotationScales.h"
#include "DbSymbolTable.h"
#include "OdGeMatrix3d.h"
#include <deque>
#include <memory>
#include <unordered_map>

struct OdDbUnitsSettings;
class OdDbUnitsFormatter;
class OdDbUndoJournal;

// WCS <-> current UCS conversions of a database's current UCS.
class DB_API OdDbCoordinateService {
 public:
  OdDbCoordinateService(const OdGePoint3d& origin, const OdGeVector3d& xDir, const OdGeVector3d& yDir);
  OdGePoint3d wcsToUcs(const OdGePoint3d& p) const { return m_toUcs * p; }
  OdGePoint3d ucsToWcs(const OdGePoint3d& p) const { return m_toWcs * p; }
  // Directions: only the rotation applies.
  OdGeVector3d wcsToUcs(const OdGeVector3d& v) const { return m_toUcs * v; }
  OdGeVector3d ucsToWcs(const OdGeVector3d& v) const { return m_toWcs * v; }
  const OdGeMatrix3d& wcsToUcsMatrix() const { return m_toUcs; }
  const OdGeMatrix3d& ucsToWcsMatrix() const { return m_toWcs; }
  OdGeVector3d ucsZAxis() const;

 private:
  OdGeMatrix3d m_toWcs, m_toUcs;
};

class DB_API OdDbDatabase : public OdRxObject {
 public:
  static OdRxClass* desc();
  OdRxClass* isA() const override;
  static void rxInit();
  static void rxUninit();

  // With buildDefaultDrawing the database gets what every drawing has: the
  // tables, layer "0", linetypes ByBlock/ByLayer/Continuous, text and
  // dimension style "Standard", application "ACAD", model and paper space.
  explicit OdDbDatabase(bool buildDefaultDrawing = true);
  ~OdDbDatabase() override;
  static OdSmartPtr<OdDbDatabase> createObject(bool buildDefaultDrawing = true);

  // --- objects ---------------------------------------------------------
  // Adds an object; it gets the next free handle, or the given one when that
  // is free (drawing files keep their handles). A handle already in use
  // raises OdError(eDuplicateKey). The database holds a reference.
  OdDbObjectId addOdDbObject(OdDbObject* object, const OdDbObjectId& ownerId = OdDbObjectId::kNull,
                             OdDbHandle handle = OdDbHandle());
  OdDbObjectId getOdDbObjectId(const OdDbHandle& handle) const;
  // The next handle that will be given out; always above every handle in use.
  OdDbHandle handseed() const { return m_handseed; }
  void setHandseed(OdDbHandle h);
  size_t objectCount() const { return m_byHandle.size(); }
  // Makes room for n objects in all (for file readers that know the count).
  void reserveObjects(size_t n) { m_byHandle.reserve(n); }

  // --- tables and blocks --------------------------------------------------
  OdDbObjectId getBlockTableId() const { return m_blockTable; }
  OdDbObjectId getLayerTableId() const { return m_layerTable; }
  OdDbObjectId getLinetypeTableId() const { return m_linetypeTable; }
  OdDbObjectId getTextStyleTableId() const { return m_textStyleTable; }
  OdDbObjectId getDimStyleTableId() const { return m_dimStyleTable; }
  OdDbObjectId getRegAppTableId() const { return m_regAppTable; }
  // Named views and viewport configurations; null in a drawing that has none.
  OdDbObjectId getViewTableId() const { return m_viewTable; }
  OdDbObjectId getViewportTableId() const { return m_viewportTable; }
  // The root of the drawing's dictionaries (groups, styles, layouts, ...);
  // null in a drawing that has none.
  OdDbObjectId getNamedObjectsDictionaryId() const { return m_namedObjects; }
  OdDbObjectId getModelSpaceId() const;
  OdDbObjectId getPaperSpaceId() const;
  OdDbObjectId getLayerZeroId() const;
  OdDbObjectId getLinetypeByLayerId() const;
  OdDbObjectId getLinetypeByBlockId() const;
  OdDbObjectId getLinetypeContinuousId() const;
  // Used by the file reader, which creates the tables itself.
  void setTableIdsInternal(const OdDbObjectId& block, const OdDbObjectId& layer, const OdDbObjectId& linetype,
                           const OdDbObjectId& textStyle, const OdDbObjectId& dimStyle,
                           const OdDbObjectId& regApp);
  void setViewTableIdsInternal(const OdDbObjectId& view, const OdDbObjectId& viewport) {
    m_viewTable = view;
    m_viewportTable = viewport;
  }
  void setNamedObjectsDictionaryIdInternal(const OdDbObjectId& id) { m_namedObjects = id; }
  // Registers an application name for extended data (no-op when present).
  OdDbObjectId newRegApp(const OdString& name);

  // --- system variables ---------------------------------------------------
  int getLUNITS() const { return m_lunits; }
  void setLUNITS(int v);       // 1..5, else OdError(eInvalidInput)
  int getLUPREC() const { return m_luprec; }
  void setLUPREC(int v);       // 0..8
  int getAUNITS() const { return m_aunits; }
  void setAUNITS(int v);       // 0..4
  int getAUPREC() const { return m_auprec; }
  void setAUPREC(int v);       // 0..8
  double getANGBASE() const { return m_angbase; }
  void setANGBASE(double v) { m_angbase = v; }
  bool getANGDIR() const { return m_angdir; }
  void setANGDIR(bool v) { m_angdir = v; }
  int getUNITMODE() const { return m_unitmode; }
  void setUNITMODE(int v) { m_unitmode = v; }
  int getINSUNITS() const { return m_insunits; }
  void setINSUNITS(int v) { m_insunits = v; }
  int getMEASUREMENT() const { return m_measurement; }
  void setMEASUREMENT(int v) { m_measurement = v; }
  double getTEXTSIZE() const { return m_textsize; }
  void setTEXTSIZE(double v) { m_textsize = v; }
  double getLTSCALE() const { return m_ltscale; }
  void setLTSCALE(double v) { m_ltscale = v; }
  double getCELTSCALE() const { return m_celtscale; }
  void setCELTSCALE(double v) { m_celtscale = v; }
  int getPDMODE() const { return m_pdmode; }
  void setPDMODE(int v) { m_pdmode = v; }
  double getPDSIZE() const { return m_pdsize; }
  void setPDSIZE(double v) { m_pdsize = v; }
  bool getPLINEGEN() const { return m_plinegen; }
  void setPLINEGEN(bool v) { m_plinegen = v; }
  OdDbObjectId getCLAYER() const { return m_clayer; }
  void setCLAYER(const OdDbObjectId& id) { m_clayer = id; }
  OdDbObjectId getTEXTSTYLE() const { return m_textstyle; }
  void setTEXTSTYLE(const OdDbObjectId& id) { m_textstyle = id; }
  OdDbObjectId getDIMSTYLE() const { return m_dimstyle; }
  void setDIMSTYLE(const OdDbObjectId& id) { m_dimstyle = id; }

  // The current UCS of model space: origin and unit X and Y axes (WCS).
  OdGePoint3d getUCSORG() const { return m_ucsOrg; }
  OdGeVector3d getUCSXDIR() const { return m_ucsX; }
  OdGeVector3d getUCSYDIR() const { return m_ucsY; }
  // Sets the current UCS; the axes are normalised and Y is made
  // perpendicular to X. Parallel or zero axes raise OdError(eInvalidInput).
  void setUCS(const OdGePoint3d& origin, const OdGeVector3d& xAxis, const OdGeVector3d& yAxis);
  OdDbCoordinateService coordinateService() const;

  // The drawing's unit settings, and a formatter/parser that follows them.
  OdDbUnitsSettings unitsSettings() const;
  OdDbUnitsFormatter formatter() const;

  // The release the drawing was read from ("AC1015"), or the one it is to be
  // saved as once a newer one was chosen; empty for new drawings.
  OdString originalFileVersion() const { return m_fileVersion; }
  void setOriginalFileVersion(const OdString& v) { m_fileVersion = v; }

  // Plot styles. PSTYLEMODE is true when objects plot by their colour
  // (colour-dependent plot style tables; every drawing before R2000) and
  // false when they name a plot style; plotStyleNames() are the named plot
  // styles the drawing has.
  bool getPSTYLEMODE() const { return m_pstylemode; }
  void setPSTYLEMODE(bool colorDependent) { m_pstylemode = colorDependent; }
  const OdArray<OdString>& plotStyleNames() const { return m_plotStyleNames; }
  void setPlotStyleNames(const OdArray<OdString>& names) { m_plotStyleNames = names; }

  // Annotation scales: the drawing's scale list, its current annotation
  // scale and, for each object that has them, the scales it is drawn at
  // (read from the drawing's dictionaries; see DbAnnotationScales.h).
  const OdDbAnnotationScales& annotationScales() const { return m_annotationScales; }
  void setAnnotationScales(const OdDbAnnotationScales& scales) { m_annotationScales = scales; }

  // What the drawing-file reader keeps with the database to write the
  // drawing back as it was read (the file's records and which object each
  // belongs to). Opaque to the database; released with it.
  OdRxObject* fileData() const { return m_fileData.get(); }
  void setFileData(OdRxObject* data) { m_fileData = data; }

  // The edits that can be undone and redone (see DbUndo.h).
  OdDbUndoJournal& undoJournal();

 private:
  void buildDefaults();
  OdDbObjectId tableRecord(const OdDbObjectId& table, const char* name) const;

  std::deque<OdDbStub> m_stubs;
  std::unordered_map<uint64_t, OdDbStub*> m_byHandle;
  OdDbHandle m_handseed{1};

  OdDbObjectId m_blockTable, m_layerTable, m_linetypeTable, m_textStyleTable, m_dimStyleTable, m_regAppTable;
  OdDbObjectId m_viewTable, m_viewportTable, m_namedObjects;
  int m_lunits = 2, m_luprec = 4, m_aunits = 0, m_auprec = 0, m_unitmode = 0, m_insunits = 0,
      m_measurement = 0, m_pdmode = 0;
  double m_angbase = 0, m_textsize = 2.5, m_ltscale = 1, m_celtscale = 1, m_pdsize = 0;
  bool m_angdir = false, m_plinegen = false;
  OdDbObjectId m_clayer, m_textstyle, m_dimstyle;
  OdGePoint3d m_ucsOrg;
  OdGeVector3d m_ucsX{1, 0, 0}, m_ucsY{0, 1, 0};
  OdString m_fileVersion;
  bool m_pstylemode = true;
  OdArray<OdString> m_plotStyleNames;
  OdDbAnnotationScales m_annotationScales;
  OdRxObjectPtr m_fileData;
  std::unique_ptr<OdDbUndoJournal> m_undo;
};
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

// Registers every drawing class of the platform in the class dictionary and
// fills g_odDbRegistredDwgClasses. Hosts call it once at start-up.
DB_API void odDbInitialize();

// The drawing classes by their registered-class number (the numbers drawing
// files use for the built-in classes); entries without a class are null.
constexpr int kOdDbRegisteredClassCount = 100;
extern DB_API OdRxClass* g_odDbRegistredDwgClasses[kOdDbRegisteredClassCount];
