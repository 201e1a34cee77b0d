#include "platform/WorkerPool.h"

#include <algorithm>
#include <thread>

#ifndef _WIN32
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#endif

namespace platform {

namespace {

std::vector<WorkerResult> runHere(size_t count, const WorkerJob& job, const WorkerProgress& progress) {
  std::vector<WorkerResult> results(count);
  for (size_t i = 0; i < count; ++i) {
    job(i, results[i]);
    if (progress) progress(i + 1, count);
  }
  return results;
}

#ifndef _WIN32

bool writeAll(int fd, const void* data, size_t size) {
  const char* p = static_cast<const char*>(data);
  while (size > 0) {
    ssize_t n = ::write(fd, p, size);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    p += n;
    size -= static_cast<size_t>(n);
  }
  return true;
}

bool readAll(int fd, void* data, size_t size) {
  char* p = static_cast<char*>(data);
  while (size > 0) {
    ssize_t n = ::read(fd, p, size);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    p += n;
    size -= static_cast<size_t>(n);
  }
  return true;
}

bool writeText(int fd, const std::string& text) {
  const uint64_t size = text.size();
  return writeAll(fd, &size, sizeof size) && writeAll(fd, text.data(), text.size());
}

bool readText(int fd, std::string& text) {
  uint64_t size = 0;
  if (!readAll(fd, &size, sizeof size)) return false;
  text.resize(static_cast<size_t>(size));
  return size == 0 || readAll(fd, &text[0], text.size());
}

// One forked worker: reads job numbers from `tasks` and answers each with
// its exit code, output and error text on `answers`, until `tasks` closes.
[[noreturn]] void workerLoop(int tasks, int answers, const WorkerJob& job) {
  uint64_t index = 0;
  while (readAll(tasks, &index, sizeof index)) {
    WorkerResult result;
    try {
      job(static_cast<size_t>(index), result);
    } catch (const std::exception& e) {
      result.exitCode = 2;
      result.err += std::string("vtyconf: ") + e.what() + "\n";
    }
    const int32_t code = result.exitCode;
    if (!writeAll(answers, &code, sizeof code) || !writeText(answers, result.out) ||
        !writeText(answers, result.err) || !writeText(answers, result.data))
      break;
  }
  ::_exit(0);
}

struct Worker {
  pid_t pid = -1;
  int tasks = -1;    // we write job numbers here
  int answers = -1;  // we read results here
  bool busy = false;
  size_t index = 0;
};

bool startWorker(Worker& worker, const WorkerJob& job, const std::vector<Worker>& others) {
  int toWorker[2];
  int fromWorker[2];
  if (::pipe(toWorker) != 0) return false;
  if (::pipe(fromWorker) != 0) {
    ::close(toWorker[0]);
    ::close(toWorker[1]);
    return false;
  }
  const pid_t pid = ::fork();
  if (pid < 0) {
    for (int fd : {toWorker[0], toWorker[1], fromWorker[0], fromWorker[1]}) ::close(fd);
    return false;
  }
  if (pid == 0) {
    ::close(toWorker[1]);
    ::close(fromWorker[0]);
    // The other workers' pipe ends must not stay open here, or they would
    // never see end of file.
    for (const Worker& other : others) {
      if (other.tasks >= 0) ::close(other.tasks);
      if (other.answers >= 0) ::close(other.answers);
    }
    workerLoop(toWorker[0], fromWorker[1], job);
  }
  ::close(toWorker[0]);
  ::close(fromWorker[1]);
  worker.pid = pid;
  worker.tasks = toWorker[1];
  worker.answers = fromWorker[0];
  return true;
}

bool sendJob(Worker& worker, size_t index) {
  const uint64_t value = index;
  if (!writeAll(worker.tasks, &value, sizeof value)) return false;
  worker.busy = true;
  worker.index = index;
  return true;
}

void stopWorker(Worker& worker) {
  if (worker.tasks >= 0) ::close(worker.tasks);
  if (worker.answers >= 0) ::close(worker.answers);
  worker.tasks = worker.answers = -1;
  if (worker.pid > 0) {
    int status = 0;
    while (::waitpid(worker.pid, &status, 0) < 0 && errno == EINTR) {
    }
  }
  worker.pid = -1;
  worker.busy = false;
}

std::vector<WorkerResult> runForked(size_t count, unsigned jobs, const WorkerJob& job,
                                    const WorkerProgress& progress) {
  // A worker that dies must not take the caller with it through SIGPIPE.
  struct sigaction ignore {};
  struct sigaction previous {};
  ignore.sa_handler = SIG_IGN;
  sigemptyset(&ignore.sa_mask);
  ::sigaction(SIGPIPE, &ignore, &previous);

  std::vector<WorkerResult> results(count);
  std::vector<Worker> workers(std::min<size_t>(jobs, count));
  for (Worker& worker : workers) startWorker(worker, job, workers);
  size_t next = 0;
  size_t done = 0;
  auto finish = [&](size_t index, WorkerResult result) {
    results[index] = std::move(result);
    ++done;
    if (progress) progress(done, count);
  };
  for (Worker& worker : workers) {
    if (worker.pid > 0 && next < count && sendJob(worker, next)) ++next;
  }
  while (done < count) {
    std::vector<pollfd> fds;
    std::vector<Worker*> owners;
    for (Worker& worker : workers) {
      if (worker.busy) {
        fds.push_back({worker.answers, POLLIN, 0});
        owners.push_back(&worker);
      }
    }
    if (fds.empty()) {
      // No worker is left: the rest runs here.
      for (; next < count; ++next) {
        WorkerResult result;
        job(next, result);
        finish(next, std::move(result));
      }
      break;
    }
    if (::poll(fds.data(), fds.size(), -1) < 0) {
      if (errno == EINTR) continue;
      break;
    }
    for (size_t k = 0; k < fds.size(); ++k) {
      if (fds[k].revents == 0) continue;
      Worker& worker = *owners[k];
      WorkerResult result;
      int32_t code = 0;
      const bool ok = readAll(worker.answers, &code, sizeof code) && readText(worker.answers, result.out) &&
                      readText(worker.answers, result.err) && readText(worker.answers, result.data);
      worker.busy = false;
      if (ok) {
        result.exitCode = code;
        finish(worker.index, std::move(result));
        if (next < count && sendJob(worker, next)) ++next;
      } else {
        result = WorkerResult{};
        result.exitCode = 2;
        result.err = "vtyconf: a worker process ended while it treated this input\n";
        finish(worker.index, std::move(result));
        stopWorker(worker);
      }
    }
  }
  for (Worker& worker : workers) stopWorker(worker);
  ::sigaction(SIGPIPE, &previous, nullptr);
  return results;
}

#endif

}  // namespace

std::vector<WorkerResult> runInWorkers(size_t count, unsigned jobs, const WorkerJob& job,
                                       const WorkerProgress& progress) {
#ifndef _WIN32
  if (jobs > 1 && count > 1) return runForked(count, jobs, job, progress);
#endif
  return runHere(count, job, progress);
}

unsigned processorCount() {
  const unsigned count = std::thread::hardware_concurrency();
  return count == 0 ? 1 : count;
}

}  // namespace platform
