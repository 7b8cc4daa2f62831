#include "OdResBuf.h"

OdResBufPtr OdResBuf::newRb(int restype) {
  OdResBufPtr rb(new OdResBuf());
  rb->m_type = restype;
  return rb;
}

OdResBuf::ValueKind OdResBuf::kindOf(int c) {
  if ((c >= 0 && c <= 9) || c == 100 || c == 102 || c == 105 || (c >= 300 && c <= 309) ||
      (c >= 410 && c <= 419) || (c >= 430 && c <= 439) || (c >= 470 && c <= 479) ||
      (c >= 999 && c <= 1003) || c == 1009)
    return kString;
  if ((c >= 310 && c <= 319) || c == 1004) return kBinary;
  if ((c >= 320 && c <= 369) || (c >= 390 && c <= 399) || (c >= 480 && c <= 481) || c == 1005) return kHandle;
  if ((c >= 10 && c <= 18) || (c >= 110 && c <= 112) || (c >= 1010 && c <= 1013)) return kPoint;
  if ((c >= 19 && c <= 59) || (c >= 140 && c <= 149) || (c >= 210 && c <= 239) || (c >= 460 && c <= 469) ||
      (c >= 1014 && c <= 1059))
    return kDouble;
  if ((c >= 60 && c <= 79) || (c >= 170 && c <= 179) || (c >= 270 && c <= 289) || (c >= 370 && c <= 389) ||
      (c >= 400 && c <= 409) || (c >= 1060 && c <= 1070))
    return kInt16;
  if ((c >= 90 && c <= 99) || (c >= 420 && c <= 429) || (c >= 440 && c <= 459) || c == 1071) return kInt32;
  if (c >= 160 && c <= 169) return kInt64;
  if (c >= 290 && c <= 299) return kBool;
  return kNone;
}

OdResBuf* OdResBuf::last() {
  OdResBuf* p = this;
  while (p->m_next) p = p->m_next.get();
  return p;
}

OdResBufPtr OdResBuf::copyItem() const {
  OdResBufPtr item = newRb(m_type);
  item->m_value = m_value;
  return item;
}

OdResBufPtr OdResBuf::copyChain() const {
  OdResBufPtr head = newRb(m_type);
  head->m_value = m_value;
  OdResBuf* tail = head.get();
  for (const OdResBuf* p = m_next.get(); p; p = p->m_next.get()) {
    OdResBufPtr n = newRb(p->m_type);
    n->m_value = p->m_value;
    tail = tail->setNext(n.get());
  }
  return head;
}

void OdResBuf::setValue(int v) { m_value = int64_t(v); }

OdString OdResBuf::getString() const {
  if (auto* s = std::get_if<OdString>(&m_value)) return *s;
  return {};
}

double OdResBuf::getDouble() const {
  if (auto* d = std::get_if<double>(&m_value)) return *d;
  if (auto* i = std::get_if<int64_t>(&m_value)) return double(*i);
  return 0.0;
}

int64_t OdResBuf::getInt64() const {
  if (auto* i = std::get_if<int64_t>(&m_value)) return *i;
  if (auto* b = std::get_if<bool>(&m_value)) return *b ? 1 : 0;
  if (auto* d = std::get_if<double>(&m_value)) return int64_t(*d);
  return 0;
}
int16_t OdResBuf::getInt16() const { return int16_t(getInt64()); }
int32_t OdResBuf::getInt32() const { return int32_t(getInt64()); }
bool OdResBuf::getBool() const { return getInt64() != 0; }

OdGePoint3d OdResBuf::getPoint3d() const {
  if (auto* p = std::get_if<OdGePoint3d>(&m_value)) return *p;
  return {};
}

uint64_t OdResBuf::getHandle() const {
  if (auto* h = std::get_if<uint64_t>(&m_value)) return *h;
  if (auto* s = std::get_if<OdString>(&m_value)) return s->qstring().toULongLong(nullptr, 16);
  return 0;
}

QByteArray OdResBuf::getBinaryChunk() const {
  if (auto* b = std::get_if<QByteArray>(&m_value)) return *b;
  return {};
}

bool OdResBuf::chainsEqual(const OdResBuf* a, const OdResBuf* b) {
  for (; a && b; a = a->next(), b = b->next())
    if (a->m_type != b->m_type || a->m_value != b->m_value) return false;
  return !a && !b;
}
