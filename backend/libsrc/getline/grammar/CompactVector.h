// CompactVector: the storage of FlatMap and FlatSet.
//
// A growable array in the size of one pointer, for the tens of thousands of
// small containers of the grammar, most of them empty: an empty one holds no
// storage; otherwise the pointer leads to one block holding the count, the
// capacity and the elements. Offers only what the flat containers use:
// iteration by pointer, inserting and erasing at a position, clear() that
// keeps the storage, copies and moves. A change may move the elements;
// nothing that points into it survives one. Not thread-safe.
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
  CompactVector(CompactVector&& other) noexcept : mBlock(std::exchange(other.mBlock, nullptr)) {}
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
      mBlock = std::exchange(other.mBlock, nullptr);
    }
    return *this;
  }
  ~CompactVector() { release(); }

  T* begin() { return data(); }
  T* end() { return data() + size(); }
  const T* begin() const { return data(); }
  const T* end() const { return data() + size(); }
  std::size_t size() const { return mBlock ? mBlock->size : 0; }
  std::size_t capacity() const { return mBlock ? mBlock->capacity : 0; }
  bool empty() const { return size() == 0; }
  T& back() { return data()[size() - 1]; }
  const T& back() const { return data()[size() - 1]; }

  void clear() {
    if (!mBlock) return;
    std::destroy(begin(), end());
    mBlock->size = 0;
  }

  void reserve(std::size_t count) {
    if (count > capacity()) regrow(count);
  }

  // Inserts before `position`; the value is built before anything moves, so
  // it may come from the container itself.
  template <typename... Args>
  T* emplace(const T* position, Args&&... args) {
    const std::size_t at = static_cast<std::size_t>(position - data());
    const std::size_t count = size();
    if (count == capacity()) return growInto(at, std::forward<Args>(args)...);
    T* items = data();
    if (at == count) {
      // Nothing moves: the arguments stay valid while the element is built.
      ::new (static_cast<void*>(items + count)) T(std::forward<Args>(args)...);
    } else {
      T value(std::forward<Args>(args)...);
      ::new (static_cast<void*>(items + count)) T(std::move(items[count - 1]));
      std::move_backward(items + at, items + count - 1, items + count);
      items[at] = std::move(value);
    }
    ++mBlock->size;
    return items + at;
  }

  T* erase(const T* position) {
    T* items = data();
    T* at = items + (position - items);
    std::move(at + 1, end(), at);
    --mBlock->size;
    std::destroy_at(items + mBlock->size);
    return at;
  }

  bool operator==(const CompactVector& other) const { return std::equal(begin(), end(), other.begin(), other.end()); }
  bool operator!=(const CompactVector& other) const { return !(*this == other); }

 private:
  // The block: this header, then `capacity` places for elements.
  struct Header {
    uint32_t size;
    uint32_t capacity;
  };
  static_assert(sizeof(Header) % alignof(T) == 0, "elements follow the header");

  T* data() const { return mBlock ? reinterpret_cast<T*>(mBlock + 1) : nullptr; }

  void assignFrom(const CompactVector& other) {
    if (other.empty()) return;
    reserve(other.size());
    std::uninitialized_copy(other.begin(), other.end(), data());
    mBlock->size = static_cast<uint32_t>(other.size());
  }

  // Inserts at `at` into a new block twice as large: the new element is built
  // there first, while the old block (which the arguments may point into) is
  // still whole, then the others move over around it.
  template <typename... Args>
  T* growInto(std::size_t at, Args&&... args) {
    const std::size_t count = size();
    const std::size_t capacity = count == 0 ? 1 : count * 2;
    if (capacity > std::numeric_limits<uint32_t>::max()) throw std::length_error("CompactVector too long");
    void* raw = ::operator new(sizeof(Header) + capacity * sizeof(T));
    Header* block = ::new (raw) Header{0, static_cast<uint32_t>(capacity)};
    T* items = reinterpret_cast<T*>(block + 1);
    try {
      ::new (static_cast<void*>(items + at)) T(std::forward<Args>(args)...);
    } catch (...) {
      ::operator delete(raw);
      throw;
    }
    if (mBlock) {
      std::uninitialized_move(begin(), begin() + at, items);
      std::uninitialized_move(begin() + at, end(), items + at + 1);
      std::destroy(begin(), end());
      ::operator delete(mBlock);
    }
    block->size = static_cast<uint32_t>(count + 1);
    mBlock = block;
    return items + at;
  }

  void regrow(std::size_t capacity) {
    if (capacity > std::numeric_limits<uint32_t>::max()) throw std::length_error("CompactVector too long");
    void* raw = ::operator new(sizeof(Header) + capacity * sizeof(T));
    Header* block = ::new (raw) Header{0, static_cast<uint32_t>(capacity)};
    if (mBlock) {
      std::uninitialized_move(begin(), end(), reinterpret_cast<T*>(block + 1));
      block->size = mBlock->size;
      std::destroy(begin(), end());
      ::operator delete(mBlock);
    }
    mBlock = block;
  }

  void release() {
    if (!mBlock) return;
    std::destroy(begin(), end());
    ::operator delete(mBlock);
    mBlock = nullptr;
  }

  Header* mBlock = nullptr;
};

}  // namespace qxparser
