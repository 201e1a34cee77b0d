// CompactVector: the storage of FlatMap and FlatSet.
//
// A growable array in 16 bytes (a pointer and two 32-bit counts) instead of
// the 24 of std::vector, for the tens of thousands of small containers of the
// grammar, most of them empty. Offers only what the flat containers use:
// iteration by pointer, appending, inserting and erasing at a position,
// clear() that keeps the storage, copies and moves. A change may move the
// elements; nothing that points into it survives one. Not thread-safe.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

namespace qxparser {

template <typename T>
class CompactVector {
 public:
  using value_type = T;
  using iterator = T*;
  using const_iterator = const T*;

  CompactVector() = default;
  CompactVector(const CompactVector& other) { assignFrom(other); }
  CompactVector(CompactVector&& other) noexcept
      : mData(std::exchange(other.mData, nullptr)),
        mSize(std::exchange(other.mSize, 0)),
        mCapacity(std::exchange(other.mCapacity, 0)) {}
  CompactVector& operator=(const CompactVector& other) {
    if (this != &other) {
      clear();
      assignFrom(other);
    }
    return *this;
  }
  CompactVector& operator=(CompactVector&& other) noexcept {
    if (this != &other) {
      release();
      mData = std::exchange(other.mData, nullptr);
      mSize = std::exchange(other.mSize, 0);
      mCapacity = std::exchange(other.mCapacity, 0);
    }
    return *this;
  }
  ~CompactVector() { release(); }

  T* begin() { return mData; }
  T* end() { return mData + mSize; }
  const T* begin() const { return mData; }
  const T* end() const { return mData + mSize; }
  std::size_t size() const { return mSize; }
  bool empty() const { return mSize == 0; }
  T& back() { return mData[mSize - 1]; }
  const T& back() const { return mData[mSize - 1]; }

  void clear() {
    std::destroy(mData, mData + mSize);
    mSize = 0;
  }

  void reserve(std::size_t count) {
    if (count > mCapacity) regrow(count);
  }

  // Inserts before `position`; the value is built before anything moves, so
  // it may come from the container itself.
  template <typename... Args>
  T* emplace(const T* position, Args&&... args) {
    const std::size_t at = static_cast<std::size_t>(position - mData);
    T value(std::forward<Args>(args)...);
    if (mSize == mCapacity) regrow(mCapacity == 0 ? 1 : std::size_t{mCapacity} * 2);
    if (at == mSize) {
      ::new (static_cast<void*>(mData + mSize)) T(std::move(value));
    } else {
      ::new (static_cast<void*>(mData + mSize)) T(std::move(mData[mSize - 1]));
      std::move_backward(mData + at, mData + mSize - 1, mData + mSize);
      mData[at] = std::move(value);
    }
    ++mSize;
    return mData + at;
  }

  T* erase(const T* position) {
    T* at = mData + (position - mData);
    std::move(at + 1, end(), at);
    --mSize;
    std::destroy_at(mData + mSize);
    return at;
  }

  bool operator==(const CompactVector& other) const {
    if (mSize != other.mSize) return false;
    for (std::size_t i = 0; i < mSize; ++i) {
      if (!(mData[i] == other.mData[i])) return false;
    }
    return true;
  }
  bool operator!=(const CompactVector& other) const { return !(*this == other); }

 private:
  void assignFrom(const CompactVector& other) {
    reserve(other.mSize);
    std::uninitialized_copy(other.begin(), other.end(), mData);
    mSize = other.mSize;
  }

  void regrow(std::size_t capacity) {
    if (capacity > std::numeric_limits<uint32_t>::max()) throw std::length_error("CompactVector too long");
    T* data = static_cast<T*>(::operator new(capacity * sizeof(T)));
    std::uninitialized_move(mData, mData + mSize, data);
    std::destroy(mData, mData + mSize);
    ::operator delete(mData);
    mData = data;
    mCapacity = static_cast<uint32_t>(capacity);
  }

  void release() {
    clear();
    ::operator delete(mData);
    mData = nullptr;
    mCapacity = 0;
  }

  T* mData = nullptr;
  uint32_t mSize = 0;
  uint32_t mCapacity = 0;
};

}  // namespace qxparser
