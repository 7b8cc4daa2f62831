#pragma once
// Result codes of the drawing platform. The numbers are part of the platform's
// contract: modules and hosts compare them, and some are shown to users.
#include "OdString.h"
#include "RxExport.h"

enum OdResult : int {
  eOk = 0,
  eNotImplementedYet = 1,
  eNotApplicable = 2,
  eInvalidInput = 3,
  eOutOfMemory = 6,
  eInvalidIndex = 10,
  eKeyNotFound = 11,
  eDuplicateKey = 12,
  eNullObjectId = 16,
  eWrongDatabase = 21,
  eNotOpenForRead = 24,
  eNotOpenForWrite = 25,
  eNotThatKindOfClass = 31,
  eWasErased = 35,
  eInvalidOpenState = 40,
  eFileNotFound = 50,
  eFileAccessErr = 51,
  eBadDxfFile = 54,
  eIncompatibleVersion = 60,
  eNullPtr = 70,
  eNotInDatabase = 80,
  eDuplicateRecordName = 90,
  eAlreadyInDb = 91,
  eInvalidSymbolTableName = 92,
  eModuleNotFound = 100,
  eInvalidModule = 101,
  eCommandAlreadyExists = 110,
  eCommandNotFound = 111,
  // A class descriptor is removed that was never registered (or was removed already).
  eClassNotRegistered = 255,
  // A class descriptor is registered a second time.
  eClassAlreadyRegistered = 315,
};

// Human-readable name of a result code.
RX_API OdString odResultName(OdResult res);

// The platform's exception. Thrown for programming errors and failed
// registrations; callers catch it where a user action may legitimately fail.
class RX_API OdError {
 public:
  explicit OdError(OdResult code) : m_code(code) {}
  OdError(OdResult code, OdString detail) : m_code(code), m_detail(std::move(detail)) {}
  virtual ~OdError();
  OdResult code() const { return m_code; }
  OdString description() const;

 private:
  OdResult m_code;
  OdString m_detail;
};

class RX_API OdError_NotThatKindOfClass : public OdError {
 public:
  OdError_NotThatKindOfClass() : OdError(eNotThatKindOfClass) {}
  OdError_NotThatKindOfClass(const class OdRxClass* actual, const class OdRxClass* wanted);
  ~OdError_NotThatKindOfClass() override;
};

class RX_API OdError_InvalidIndex : public OdError {
 public:
  OdError_InvalidIndex() : OdError(eInvalidIndex) {}
  ~OdError_InvalidIndex() override;
};
