#include "Fleet.h"

#include "Library.h"
#include "Reports.h"

#include <fcntl.h>
#include <malloc.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <map>
#include <new>
#include <thread>

namespace qrmtool {

namespace {

using Clock = std::chrono::steady_clock;

// How a child tells the parent what its line is. Any other ending (another
// status, a signal, a line that is cut short) means the child died.
constexpr int kChildEvaluated = 0;
constexpr int kChildNewer = 10;
constexpr int kChildFailed = 20;
constexpr int kChildNoAnswer = 30;

// The child's whole life: evaluate, write one line, leave without running
// the parent's exit handlers or flushing its buffers.
[[noreturn]] void RunChild(const FleetInput& input, const FleetRun& run, int fd)
{
    int status = kChildNoAnswer;
    try {
        std::string line;
        try {
            Json document = EvaluateUpdates(run.catalog, input.path, run.bundleType);
            Json result;
            result["inventory"] = input.path;
            for (auto& item : document.items()) {
                if (item.key() != "inventory") {
                    result[item.key()] = std::move(item.value());
                }
            }
            status = HasNewer(result) ? kChildNewer : kChildEvaluated;
            line = JsonText(result, -1);
        } catch (const ToolError& error) {
            status = kChildFailed;
            line = FleetErrorLine(input.path, error.Code(), error.what());
        } catch (const std::bad_alloc&) {
            status = kChildFailed;
            line = FleetErrorLine(input.path, "out-of-memory", input.path + ": the evaluation ran out of memory");
        } catch (const std::exception& error) {
            status = kChildFailed;
            line = FleetErrorLine(input.path, "internal", input.path + ": internal error: " + error.what());
        }
        line += '\n';
        if (!WriteAll(fd, line)) {
            status = kChildNoAnswer;
        }
    } catch (...) {
        status = kChildNoAnswer;
    }
    _exit(status);
}

struct Child {
    pid_t pid = -1;
    int fd = -1;
    std::size_t index = 0;
    std::string data;
    Clock::time_point deadline;
    bool timedOut = false;
};

std::string SignalName(int signal)
{
    const char* name = strsignal(signal);
    return std::to_string(signal) + (name != nullptr ? std::string(" (") + name + ")" : std::string());
}

// The result of a child that has ended with `status` after writing `data`.
FleetResult Finish(const Child& child, int status, const FleetRun& run, const std::string& path)
{
    const bool whole =
        !child.data.empty() && child.data.back() == '\n' && child.data.find('\n') == child.data.size() - 1;
    if (WIFEXITED(status) && whole && !child.timedOut) {
        std::string line = child.data.substr(0, child.data.size() - 1);
        switch (WEXITSTATUS(status)) {
        case kChildEvaluated:
            return {std::move(line), FleetOutcome::Evaluated};
        case kChildNewer:
            return {std::move(line), FleetOutcome::EvaluatedWithNewer};
        case kChildFailed:
            return {std::move(line), FleetOutcome::Failed};
        default:
            break;
        }
    }
    std::string code = "process-died";
    std::string message;
    if (child.timedOut) {
        code = "timeout";
        char seconds[32];
        std::snprintf(seconds, sizeof seconds, "%g", run.timeoutSeconds);
        message = "the evaluation took longer than " + std::string(seconds) + " s and was stopped";
    } else if (WIFSIGNALED(status)) {
        message = "the process evaluating this inventory was killed by signal " + SignalName(WTERMSIG(status));
        if (WTERMSIG(status) == SIGKILL) {
            message += "; the system may have run out of memory";
        }
    } else {
        message = "the process evaluating this inventory ended with status " +
                  std::to_string(WIFEXITED(status) ? WEXITSTATUS(status) : -1) + " without an answer";
    }
    return {FleetErrorLine(path, code, path + ": " + message), FleetOutcome::Failed};
}

// Starts the child for `input`; false (with errno set) when no process or
// pipe could be made.
bool Start(const FleetInput& input, std::size_t index, const FleetRun& run, const std::vector<Child>& running,
           Child& child)
{
    IsolatedChild started;
    const bool ok = StartIsolated(
        [&](int fd) {
            for (const Child& other : running) {
                close(other.fd);
            }
            RunChild(input, run, fd);
        },
        started);
    if (!ok) {
        return false;
    }
    fcntl(started.fd, F_SETFL, fcntl(started.fd, F_GETFL) | O_NONBLOCK);
    child.pid = started.pid;
    child.fd = started.fd;
    child.index = index;
    child.data.clear();
    child.timedOut = false;
    child.deadline = run.timeoutSeconds > 0 ? Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                                                 std::chrono::duration<double>(run.timeoutSeconds))
                                            : Clock::time_point::max();
    return true;
}

// Reads what the child has written; true at the end of its output.
bool Drain(Child& child)
{
    char buffer[65536];
    for (;;) {
        ssize_t count = read(child.fd, buffer, sizeof buffer);
        if (count > 0) {
            child.data.append(buffer, static_cast<std::size_t>(count));
            continue;
        }
        if (count < 0 && errno == EINTR) {
            continue;
        }
        // 0: end of output; EAGAIN: nothing more for now; any other error
        // ends the output too.
        return count == 0 || errno != EAGAIN;
    }
}

int WaitFor(pid_t pid)
{
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

}  // namespace

unsigned ProcessorCount()
{
    cpu_set_t set;
    CPU_ZERO(&set);
    if (sched_getaffinity(0, sizeof set, &set) == 0 && CPU_COUNT(&set) > 0) {
        return static_cast<unsigned>(CPU_COUNT(&set));
    }
    return std::max(1U, std::thread::hardware_concurrency());
}

std::string FleetErrorLine(const std::string& inventory, const std::string& code, const std::string& message)
{
    Json line;
    line["inventory"] = inventory;
    line["schema_version"] = kSchemaVersion;
    line["error"] = {{"code", code}, {"message", message}};
    return JsonText(line, -1);
}

std::vector<FleetInput> ListFleet(const std::vector<std::string>& arguments)
{
    namespace fs = std::filesystem;
    std::vector<FleetInput> inputs;
    for (const std::string& argument : arguments) {
        std::error_code error;
        if (!fs::is_directory(fs::path(argument), error)) {
            inputs.push_back({argument, "", ""});
            continue;
        }
        std::vector<std::string> names;
        fs::directory_iterator entries(fs::path(argument), error);
        for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
            std::string name = entries->path().filename().string();
            std::error_code ignored;
            if (name.size() > 4 && name[0] != '.' && name.compare(name.size() - 4, 4, ".xml") == 0 &&
                !fs::is_directory(entries->path(), ignored)) {
                names.push_back(std::move(name));
            }
        }
        if (error) {
            inputs.push_back(
                {argument, "not-readable", argument + ": the directory cannot be listed (" + error.message() + ")"});
            continue;
        }
        std::sort(names.begin(), names.end());
        const std::string prefix = argument.back() == '/' ? argument : argument + "/";
        for (const std::string& name : names) {
            inputs.push_back({prefix + name, "", ""});
        }
    }
    return inputs;
}

std::vector<FleetInput> ShardOf(const std::vector<FleetInput>& inputs, unsigned index, unsigned count)
{
    std::vector<FleetInput> shard;
    for (std::size_t position = index - 1; position < inputs.size(); position += count) {
        shard.push_back(inputs[position]);
    }
    return shard;
}

std::vector<FleetInput> LoadFleet(const std::string& catalog, const std::vector<std::string>& arguments,
                                  unsigned shardIndex, unsigned shardCount)
{
    LoadCatalog(catalog);
    // Reading left free memory behind (the parsed document); giving it back
    // makes every fork cheaper and the children's share of memory smaller.
    malloc_trim(0);
    return ShardOf(ListFleet(arguments), shardIndex, shardCount);
}

void EvaluateFleet(const std::vector<FleetInput>& inputs, const FleetRun& run,
                   const std::function<void(const FleetResult&)>& report,
                   const std::function<void(std::size_t done)>& progress)
{
    const std::size_t total = inputs.size();
    const std::size_t jobs = std::max(1U, run.jobs);
    // Results that finished ahead of an earlier one wait here; starting is
    // held back so that at most this many are ever held.
    const std::size_t window = jobs * 64;
    std::map<std::size_t, FleetResult> finished;
    std::vector<Child> running;
    std::size_t next = 0;
    std::size_t reported = 0;

    while (reported < total) {
        while (running.size() < jobs && next < total && next - reported < window) {
            const FleetInput& input = inputs[next];
            if (!input.errorCode.empty()) {
                finished[next] = {FleetErrorLine(input.path, input.errorCode, input.errorMessage),
                                  FleetOutcome::Failed};
            } else {
                Child child;
                if (!Start(input, next, run, running, child)) {
                    if (!running.empty()) {
                        break;  // try again once a running child has ended
                    }
                    finished[next] = {FleetErrorLine(input.path, "process-failed",
                                                     input.path + ": no process could be started to evaluate it (" +
                                                         std::strerror(errno) + ")"),
                                      FleetOutcome::Failed};
                } else {
                    running.push_back(std::move(child));
                }
            }
            ++next;
        }

        for (auto it = finished.begin(); it != finished.end() && it->first == reported; it = finished.erase(it)) {
            report(it->second);
            ++reported;
            progress(reported);
        }
        if (running.empty()) {
            continue;
        }

        std::vector<pollfd> fds;
        Clock::time_point soonest = Clock::time_point::max();
        for (const Child& child : running) {
            fds.push_back({child.fd, POLLIN, 0});
            if (!child.timedOut) {
                soonest = std::min(soonest, child.deadline);
            }
        }
        int timeout = -1;
        if (soonest != Clock::time_point::max()) {
            auto left = std::chrono::duration_cast<std::chrono::milliseconds>(soonest - Clock::now()).count();
            timeout = static_cast<int>(std::clamp<long long>(left + 1, 0, 60000));
        }
        if (poll(fds.data(), fds.size(), timeout) < 0 && errno != EINTR) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }

        const Clock::time_point now = Clock::now();
        for (std::size_t i = 0; i < running.size();) {
            Child& child = running[i];
            if (!child.timedOut && now >= child.deadline) {
                kill(child.pid, SIGKILL);
                child.timedOut = true;
            }
            if (!Drain(child)) {
                ++i;
                continue;
            }
            close(child.fd);
            const int status = WaitFor(child.pid);
            finished[child.index] = Finish(child, status, run, inputs[child.index].path);
            running.erase(running.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
}

bool WriteAll(int fd, const std::string& text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        ssize_t written = write(fd, text.data() + done, text.size() - done);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(written);
    }
    return true;
}

bool StartIsolated(const std::function<void(int fd)>& body, IsolatedChild& child)
{
    int fds[2];
    if (pipe(fds) != 0) {
        return false;
    }
    const pid_t pid = fork();
    if (pid < 0) {
        const int saved = errno;
        close(fds[0]);
        close(fds[1]);
        errno = saved;
        return false;
    }
    if (pid == 0) {
        close(fds[0]);
        int status = 0;
        try {
            body(fds[1]);
        } catch (...) {
            status = kChildNoAnswer;
        }
        _exit(status);
    }
    close(fds[1]);
    child.pid = pid;
    child.fd = fds[0];
    return true;
}

bool ReadSome(const IsolatedChild& child, std::string& data)
{
    char buffer[65536];
    for (;;) {
        const ssize_t count = read(child.fd, buffer, sizeof buffer);
        if (count > 0) {
            data.append(buffer, static_cast<std::size_t>(count));
            return true;
        }
        if (count < 0 && errno == EINTR) {
            continue;
        }
        return false;
    }
}

std::string EndIsolated(IsolatedChild& child)
{
    if (child.fd >= 0) {
        close(child.fd);
        child.fd = -1;
    }
    if (child.pid < 0) {
        return std::string();
    }
    const int status = WaitFor(child.pid);
    child.pid = -1;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
        return std::string();
    }
    if (WIFSIGNALED(status)) {
        return "killed by signal " + SignalName(WTERMSIG(status)) +
               (WTERMSIG(status) == SIGKILL ? "; the system may have run out of memory" : "");
    }
    return "ended with status " + std::to_string(WIFEXITED(status) ? WEXITSTATUS(status) : -1) + " without an answer";
}

std::string EvaluateIsolated(const std::function<Json()>& work)
{
    IsolatedChild child;
    const bool started = StartIsolated(
        [&work](int fd) {
            std::string text;
            try {
                text = JsonText(work(), -1);
            } catch (const ToolError& error) {
                text = JsonText(ErrorDocument(error), -1);
            } catch (const std::bad_alloc&) {
                text = JsonText(ErrorDocument(ToolError("out-of-memory", "the evaluation ran out of memory")), -1);
            } catch (const std::exception& error) {
                text =
                    JsonText(ErrorDocument(ToolError("internal", std::string("internal error: ") + error.what())), -1);
            }
            if (!WriteAll(fd, text + "\n")) {
                _exit(kChildNoAnswer);
            }
        },
        child);
    if (!started) {
        throw ToolError("process-failed", std::string("no process could be started to compute the answer (") +
                                              std::strerror(errno) + ")");
    }
    std::string data;
    while (ReadSome(child, data)) {
    }
    const std::string death = EndIsolated(child);
    if (death.empty() && !data.empty() && data.back() == '\n') {
        data.pop_back();
        return data;
    }
    return JsonText(ErrorDocument(ToolError("process-died", "the process computing the answer " +
                                                                (death.empty() ? "gave no answer" : death))),
                    -1);
}

}  // namespace qrmtool
