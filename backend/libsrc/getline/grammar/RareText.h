// RareText: a text that most objects holding it leave empty.
//
// One pointer instead of a whole string: an empty text holds no storage, a
// set one is a string of its own on the heap. Reads as a const std::string
// (an empty one while unset), is set by assignment. Grammar nodes name the
// mode file and mode they open with it: a few hundred of twenty thousand
// nodes do. Owned by its holder; not thread-safe.
#pragma once

#include <memory>
#include <string>
#include <utility>

namespace qxparser {

class RareText {
 public:
  RareText() = default;
  RareText(const RareText& other) : mText(other.mText ? std::make_unique<std::string>(*other.mText) : nullptr) {}
  RareText(RareText&&) noexcept = default;
  RareText& operator=(const RareText& other) {
    if (this != &other) assign(other.str());
    return *this;
  }
  RareText& operator=(RareText&&) noexcept = default;
  ~RareText() = default;

  RareText& operator=(std::string text) {
    assign(std::move(text));
    return *this;
  }

  const std::string& str() const { return mText ? *mText : emptyText(); }
  operator const std::string&() const { return str(); }
  bool empty() const { return !mText || mText->empty(); }
  std::size_t size() const { return mText ? mText->size() : 0; }
  const char* c_str() const { return str().c_str(); }

  friend bool operator==(const RareText& a, const std::string& b) { return a.str() == b; }
  friend bool operator!=(const RareText& a, const std::string& b) { return a.str() != b; }

 private:
  static const std::string& emptyText() {
    static const std::string kEmpty;
    return kEmpty;
  }

  void assign(std::string text) {
    if (text.empty()) {
      mText.reset();
    } else if (mText) {
      *mText = std::move(text);
    } else {
      mText = std::make_unique<std::string>(std::move(text));
    }
  }

  std::unique_ptr<std::string> mText;
};

}  // namespace qxparser
