#pragma once
// The platform's growable array, with the member names the drawing libraries
// use (append, length, removeAt, ...) on top of std::vector.
#include <vector>
#include <cstddef>
#include <initializer_list>
#include <algorithm>

template <class T>
class OdArray : public std::vector<T> {
 public:
  using std::vector<T>::vector;
  OdArray() = default;
  OdArray(std::initializer_list<T> init) : std::vector<T>(init) {}

  unsigned length() const { return unsigned(this->size()); }
  unsigned logicalLength() const { return unsigned(this->size()); }
  bool isEmpty() const { return this->empty(); }
  OdArray& append(const T& v) { this->push_back(v); return *this; }
  OdArray& append(const OdArray& other) { this->insert(this->end(), other.begin(), other.end()); return *this; }
  OdArray& insertAt(unsigned index, const T& v) { this->insert(this->begin() + index, v); return *this; }
  OdArray& removeAt(unsigned index) { this->erase(this->begin() + index); return *this; }
  OdArray& setAt(unsigned index, const T& v) { (*this)[index] = v; return *this; }
  const T& getAt(unsigned index) const { return (*this)[index]; }
  T& first() { return this->front(); }
  T& last() { return this->back(); }
  bool contains(const T& v) const { return std::find(this->begin(), this->end(), v) != this->end(); }
  bool find(const T& v, unsigned& index) const {
    auto it = std::find(this->begin(), this->end(), v);
    if (it == this->end()) return false;
    index = unsigned(it - this->begin());
    return true;
  }
  void setLogicalLength(unsigned n) { this->resize(n); }
  void setPhysicalLength(unsigned n) { this->reserve(n); }
};
