#include "config/SideReading.h"

#include <atomic>
#include <exception>
#include <system_error>
#include <utility>

namespace qxparser {

SideReading::SideReading(std::function<void()> work) : mWork(std::move(work)), mEnd(mEnded.get_future()) {}

SideReading::~SideReading() {
  if (mPosted && mEnd.valid()) mEnd.wait();
}

namespace {

std::atomic<bool>& allowedFlag() {
  static std::atomic<bool> allowed{std::thread::hardware_concurrency() != 1};
  return allowed;
}

}  // namespace

void SideReading::setThreadsAllowed(bool allowed) { allowedFlag().store(allowed, std::memory_order_relaxed); }

bool SideReading::threadsAllowed() { return allowedFlag().load(std::memory_order_relaxed); }

bool SideReading::worthAThread(const std::string& text) {
  if (!threadsAllowed()) return false;
  // Counting stops at the threshold: a long text is not scanned whole.
  size_t lines = 0;
  for (size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
    if (++lines >= kLinesForThread) return true;
  }
  return false;
}

void SideReading::run() {
  try {
    mWork();
    mEnded.set_value();
  } catch (...) {
    mEnded.set_exception(std::current_exception());
  }
}

void SideReading::wait() {
  if (mPosted) {
    // get() leaves the future empty: a second wait has nothing to wait for.
    if (mEnd.valid()) mEnd.get();
    return;
  }
  if (mDone) return;
  mDone = true;
  mWork();
}

SideThread::~SideThread() {
  {
    std::lock_guard<std::mutex> guard(mLock);
    mClosing = true;
  }
  mPosted.notify_one();
  if (mThread.joinable()) mThread.join();
}

bool SideThread::post(SideReading& reading) {
  if (reading.mPosted || reading.mDone) return false;
  if (!mThread.joinable()) {
    try {
      mThread = std::thread([this]() { serve(); });
    } catch (const std::system_error&) {
      return false;
    }
  }
  {
    std::lock_guard<std::mutex> guard(mLock);
    mQueue.push_back(&reading);
    reading.mPosted = true;
  }
  mPosted.notify_one();
  return true;
}

void SideThread::serve() {
  while (true) {
    SideReading* next = nullptr;
    {
      std::unique_lock<std::mutex> guard(mLock);
      mPosted.wait(guard, [this]() { return mClosing || !mQueue.empty(); });
      if (mQueue.empty()) return;
      next = mQueue.front();
      mQueue.pop_front();
    }
    next->run();
  }
}

}  // namespace qxparser
