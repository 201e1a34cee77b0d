// SideReading and SideThread: readings that run on a second thread while the
// caller goes on with its own work.
//
// The readings of one job often do not depend on one another: the two texts
// of a fallback, a change set and the configuration it changes. A
// SideReading holds such a piece of work; a SideThread is the one extra
// thread that runs the readings posted to it, in the order posted. wait()
// waits for a posted reading and throws again, on the caller's thread, what
// it threw; a reading that was never posted runs in wait(), on the calling
// thread, at the place where a serial job reads it. Texts are worth a thread
// only from kLinesForThread lines on: below that a thread costs more than it
// saves. setThreadsAllowed(false) keeps every reading on the caller's thread
// (the default on a machine with one processor).
//
// Lifetimes: a SideReading's destructor waits for it when it was posted, and
// a SideThread's destructor runs what was posted to it and then ends its
// thread. Declare the objects a reading fills first, then the SideReading,
// then the SideThread, so that no reading outlives what it writes into. The
// work must write only into objects of its own. Readings may run on two
// threads at once (see VTY); loading or destroying the resources meanwhile is
// not allowed.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <thread>

namespace qxparser {

class SideReading {
 public:
  static constexpr size_t kLinesForThread = 2000;

  explicit SideReading(std::function<void()> work);
  SideReading(const SideReading&) = delete;
  SideReading& operator=(const SideReading&) = delete;
  ~SideReading();

  // Whether `text` has lines enough for a reading on a thread of its own
  // (never while threads are not allowed).
  static bool worthAThread(const std::string& text);

  // Whether readings may run on a second thread at all, for the process.
  static void setThreadsAllowed(bool allowed);
  static bool threadsAllowed();

  // The work done (here, when it was never posted); throws what it threw.
  void wait();
  bool posted() const { return mPosted; }

 private:
  friend class SideThread;
  // Runs the work on the side thread and keeps how it ended.
  void run();

  std::function<void()> mWork;
  std::promise<void> mEnded;
  std::future<void> mEnd;
  bool mPosted = false;
  bool mDone = false;
};

class SideThread {
 public:
  SideThread() = default;
  SideThread(const SideThread&) = delete;
  SideThread& operator=(const SideThread&) = delete;
  ~SideThread();

  // Queues `reading` for the thread (started on the first post). False when
  // no thread can be had: the reading is then left for its wait().
  bool post(SideReading& reading);

 private:
  void serve();

  std::mutex mLock;
  std::condition_variable mPosted;
  std::deque<SideReading*> mQueue;
  bool mClosing = false;
  std::thread mThread;
};

}  // namespace qxparser
