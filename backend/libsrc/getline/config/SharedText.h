// SharedText: a text that never changes, shared by the records that hold it.
//
// The records of one mode share the text of the commands that opened it
// (CiscoCommandLine's mode texts): one block per distinct text, counted by
// the holders, and one pointer in each holder, where a shared_ptr would take
// two. The count is atomic, so holders on different threads (a record and
// its copy) may come and go at once; the text itself is only read.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <utility>

namespace qxparser {

class SharedText {
 public:
  SharedText() = default;
  explicit SharedText(std::string text) : mBlock(new Block{{1}, std::move(text)}) {}
  SharedText(const SharedText& other) : mBlock(other.mBlock) { hold(); }
  SharedText(SharedText&& other) noexcept : mBlock(std::exchange(other.mBlock, nullptr)) {}
  SharedText& operator=(const SharedText& other) {
    if (mBlock != other.mBlock) {
      other.hold();
      release();
      mBlock = other.mBlock;
    }
    return *this;
  }
  SharedText& operator=(SharedText&& other) noexcept {
    if (this != &other) {
      release();
      mBlock = std::exchange(other.mBlock, nullptr);
    }
    return *this;
  }
  ~SharedText() { release(); }

  explicit operator bool() const { return mBlock != nullptr; }
  const std::string& operator*() const { return mBlock->text; }
  const std::string* operator->() const { return &mBlock->text; }
  void reset() {
    release();
    mBlock = nullptr;
  }

 private:
  struct Block {
    std::atomic<uint32_t> holders;
    std::string text;
  };
  void hold() const {
    if (mBlock) mBlock->holders.fetch_add(1, std::memory_order_relaxed);
  }
  void release() {
    if (mBlock && mBlock->holders.fetch_sub(1, std::memory_order_acq_rel) == 1) delete mBlock;
  }

  Block* mBlock = nullptr;
};

}  // namespace qxparser
