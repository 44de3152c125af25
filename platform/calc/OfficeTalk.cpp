#include "OfficeTalk.h"

#include <unistd.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <utility>

#include "Dialogs.h"
#include "OfficePlugin.h"

namespace quorb {

using std::chrono::milliseconds;

namespace {

constexpr int kNotRunning = 429;
constexpr int kDisconnected = -2147417848;
// One office that says nothing does not hold up the look at the others for longer.
constexpr milliseconds kShortPatience{250};
constexpr int kConnectPatience = 1000;
constexpr int kMostConnects = 5;
// After a question that came too late, the next one is hardly waited for.
constexpr milliseconds kNoPatience{5};
constexpr milliseconds kForever{1000L * 3600 * 24 * 365};

SheetFault BusyFault() {
  return {kFaultBusy, "The spreadsheet does not answer now."};
}

// How well an office serves: 2 it has a spreadsheet, 1 it has no document at all, 0 it has others only.
int WorthOf(const OfficeContents& contents) {
  if (contents.spreadsheets) return 2;
  return contents.otherDocuments ? 0 : 1;
}

// One office with an open connection.
struct Line {
  RunningOffice office;
  std::unique_ptr<OfficeSession> session;
  int worth = -1;
};

// An office opens one acceptor, whoever asks and however often, and keeps it to its end. It is never told to
// take it back: while it does that it waits, its windows locked, for its threads that still clean up behind a
// connection, and those wait for the windows.
std::string AcceptorOf(const RunningOffice& office) {
  return "quorb_" + std::to_string(office.process);
}

bool OpenAcceptor(const RunningOffice& office, milliseconds patience, const std::atomic<bool>& cut) {
  const std::string name = AcceptorOf(office);
  RemoveStaleAcceptor(name, getuid());
  if (AcceptorStands(name, getuid())) return true;
  const auto deadline = std::chrono::steady_clock::now() + patience;
  if (!TellOffice(office, getuid(), "--accept=pipe,name=" + name + ";urp;", patience, &cut)) return false;
  while (!AcceptorStands(name, getuid())) {
    if (cut || std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(milliseconds(2));
  }
  return true;
}

}  // namespace

// What the thread of the talk works with. Only Cut is called on other threads.
struct OfficeTalk::Connection {
  explicit Connection(CalcLinkOptions given) : options(std::move(given)) {}

  void Cut() {
    const std::lock_guard lock(mutex);
    cut = true;
    if (opening != nullptr) opening->Cut();
    if (line.session != nullptr) line.session->Cut();
  }

  void Close(Line& closed) {
    if (closed.session == nullptr) return;
    closed.session->Cut();
    const std::lock_guard lock(mutex);
    if (opening == closed.session.get()) opening = nullptr;
    closed.session.reset();
  }

  bool Open(Line& opened, std::atomic<unsigned>& pulse, SheetFault& fault) {
    std::string problem;
    auto session = OpenOfficeSession(options.pluginPath.empty() ? OfficePluginPath() : options.pluginPath,
                                     opened.office.programDirectory, pulse, problem);
    if (session == nullptr) {
      fault = {kNotRunning, problem};
      return false;
    }
    {
      const std::lock_guard lock(mutex);
      opened.session = std::move(session);
      opening = opened.session.get();
    }
    if (OpenAcceptor(opened.office, options.silence, cut) && ConnectAtLast(opened)) return true;
    fault = BusyFault();
    Close(opened);
    return false;
  }

  // A busy machine may see a connection end again while it is made: the next one stands.
  bool ConnectAtLast(Line& opened) {
    SheetFault fault;
    for (int i = 0; i < kMostConnects && !cut; ++i) {
      OfficeContents contents;
      fault = opened.session->Connect(AcceptorOf(opened.office), opened.office.programDirectory,
                                      kConnectPatience);
      if (fault.Good()) fault = opened.session->Contents(contents);
      if (fault.Good()) opened.worth = WorthOf(contents);
      if (fault.number != kDisconnected) break;
    }
    return fault.Good() && !cut;
  }

  // True while the line that is open has a spreadsheet. One that went dead is closed.
  bool StillServes() {
    if (line.session == nullptr) return false;
    OfficeContents contents;
    if (cut || !line.session->Contents(contents).Good()) {
      Close(line);
      line = Line();
      return false;
    }
    line.worth = WorthOf(contents);
    return line.worth == 2;
  }

  // Looks for offices on these sockets; those that say nothing in time stay in `paths`.
  void Search(std::vector<std::string>& paths, milliseconds patience, std::atomic<unsigned>& pulse,
              SheetFault& fault) {
    std::vector<std::string> silent;
    for (const std::string& path : paths) {
      ++pulse;
      if (cut || line.worth == 2) break;
      Line other;
      const SocketAnswer answer = LookAtSocket(path, getuid(), patience, other.office, &cut);
      if (answer == SocketAnswer::silent) silent.push_back(path);
      if (answer != SocketAnswer::office) continue;
      if (line.session != nullptr && other.office.process == line.office.process) continue;
      ++pulse;
      if (!Open(other, pulse, fault)) continue;
      if (other.worth > line.worth) Exchange(other);
      Close(other);
    }
    paths = std::move(silent);
  }

  // The polls of a time look again and again, so that one of them need not wait for an office that is slow.
  SheetFault Attach(Asker asker, std::atomic<unsigned>& pulse) {
    const bool wasCut = cut;
    if (StillServes()) return {};
    if (cut && !wasCut) return BusyFault();
    cut = false;
    SheetFault fault{kNotRunning, "No spreadsheet application is running."};
    std::vector<std::string> paths = OfficeSocketPaths(options.socketDirectories, getuid());
    Search(paths, kShortPatience, pulse, fault);
    if (asker == Asker::load && line.worth < 1 && !paths.empty())
      Search(paths, options.silence, pulse, fault);
    if (cut) return BusyFault();
    if (line.worth >= 1) return {};
    return paths.empty() ? fault : BusyFault();
  }

  void Exchange(Line& other) {
    const std::lock_guard lock(mutex);
    std::swap(line, other);
    opening = nullptr;
  }

  const CalcLinkOptions options;
  std::mutex mutex;
  std::atomic<bool> cut{false};
  OfficeSession* opening = nullptr;
  Line line;
};

OfficeTalk::OfficeTalk(CalcLinkOptions options)
    : options_(std::move(options)), connection_(std::make_shared<Connection>(options_)) {}

OfficeTalk::~OfficeTalk() {
  if (worker_ == nullptr) return;
  worker_->Run([connection = connection_] { connection->Close(connection->line); }, milliseconds(2000),
               nullptr);
}

SheetFault OfficeTalk::Perform(Asker asker, milliseconds patience, Errand& errand,
                               const std::function<SheetFault(Errand&)>& work) {
  struct Answer {
    Errand errand;
    SheetFault fault;
  };
  const auto answer = std::make_shared<Answer>(Answer{errand, {}});
  const auto job = [answer, work] { answer->fault = work(answer->errand); };
  JobEnd end = JobEnd::busy;
  if (asker == Asker::poll) {
    end = worker_->Run(job, late_ ? kNoPatience : patience, nullptr);
    late_ = end != JobEnd::done || answer->fault.number == kFaultBusy;
  } else {
    const auto pump = [] { CurrentDialogs().PumpEvents(); };
    while ((end = worker_->Run(job, kForever, pump)) == JobEnd::busy) {
      pump();
      std::this_thread::sleep_for(milliseconds(5));
    }
  }
  if (end != JobEnd::done) return BusyFault();
  if (answer->fault.Good()) errand = std::move(answer->errand);
  return answer->fault;
}

void OfficeTalk::Cut() {
  if (worker_ != nullptr) worker_->CutRunning();
}

bool OfficeTalk::IsCut() const {
  return connection_->cut;
}

SheetFault OfficeTalk::Attach(Asker asker) {
  // The threads begin with the first look for an office, not with the program.
  if (worker_ == nullptr)
    worker_ =
        std::make_unique<WatchedWorker>(options_.silence, [connection = connection_] { connection->Cut(); });
  Errand errand;
  SheetFault fault = Perform(asker, attached_ ? options_.pollPatience : options_.attachPatience, errand,
                             [connection = connection_, asker, &pulse = worker_->Pulse()](Errand&) {
                               return connection->Attach(asker, pulse);
                             });
  attached_ = fault.Good();
  return fault;
}

SheetFault OfficeTalk::Ask(Asker asker, Errand& errand, const Question& question) {
  if (worker_ == nullptr) return FaultOf(kFaultNoObject);
  return Perform(asker, options_.pollPatience, errand,
                 [connection = connection_, question](Errand& asked) -> SheetFault {
                   if (connection->cut) return BusyFault();
                   if (connection->line.session == nullptr)
                     return {kDisconnected, "The spreadsheet application went away."};
                   SheetFault fault = question(*connection->line.session, asked);
                   return connection->cut ? BusyFault() : fault;
                 });
}

}  // namespace quorb
