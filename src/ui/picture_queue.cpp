#include "ui/picture_queue.h"

#include <QThread>
#include <algorithm>
#include <utility>

#include "foundation/failures.h"
#include "platform/file_system.h"
#include "platform/qt/picture_reading.h"
#include "ui/picture_faults.h"

namespace vellumark {
namespace {

constexpr std::int64_t kMostKeptBytes = 24 << 20;
constexpr std::size_t kMostFileBytes = 32 << 20;

SmallPicture Decoded(const ReadResult& read, QSize most) {
  if (read.bytes.size() > kMostFileBytes) {
    return {.fault = WordsFor(PictureFault::kTooLargeForSmall)};
  }
  if (read.error == FileError::kNotFound) return {.exists = false};
  if (read.error != FileError::kNone) return {.fault = ReasonFor(read.error)};
  DecodedPicture decoded = DecodeSmallPicture(read.bytes, most);
  if (decoded.image.isNull()) return {.fault = WordsFor(decoded.fault)};
  // Another form would be converted each time it is painted.
  if (!decoded.image.hasAlphaChannel()) decoded.image.convertTo(QImage::Format_RGB32);
  return {.image = std::move(decoded.image)};
}

}  // namespace

PictureQueue::PictureQueue(FileSystem& files, QObject* parent) : QObject(parent), files_(files) {
  constexpr int kMostThreads = 8;  // each may hold a picture of many megabytes
  threads_.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, kMostThreads));
  // A thread finds its next job without waiting for the window.
  constexpr std::size_t kJobsForThread = 2;
  jobs_ = kJobsForThread * static_cast<std::size_t>(threads_.maxThreadCount());
}

PictureQueue::~PictureQueue() { threads_.waitForDone(); }

void PictureQueue::Ask(std::vector<std::string> paths, QSize most) {
  most_ = most;
  waiting_.clear();
  asked_ = ++now_;
  for (std::string& path : paths) {
    if (const auto kept = kept_.find(path); kept != kept_.end()) kept->second.wanted = now_;
    if (!IsCurrent(path)) waiting_.push_back(std::move(path));
  }
  BeginMore();
}

const SmallPicture* PictureQueue::Find(const std::string& path) const {
  const auto kept = kept_.find(path);
  return kept == kept_.end() ? nullptr : &kept->second.picture;
}

void PictureQueue::Renew(const std::string& path) { renewed_[path] = ++now_; }

void PictureQueue::Forget() {
  waiting_.clear();
  kept_.clear();
  renewed_.clear();
  kept_bytes_ = 0;
  forgotten_ = ++now_;
}

bool PictureQueue::IsCurrent(const std::string& path) const {
  const auto kept = kept_.find(path);
  if (kept == kept_.end() || kept->second.most != most_) return false;
  const auto renewed = renewed_.find(path);
  return renewed == renewed_.end() || kept->second.begun > renewed->second;
}

void PictureQueue::BeginMore() {
  auto next = waiting_.begin();
  while (next != waiting_.end() && in_work_.size() < jobs_) {
    // What is being read already is looked at again when it has come.
    if (in_work_.contains(*next)) {
      ++next;
      continue;
    }
    const std::string path = std::move(*next);
    next = waiting_.erase(next);
    Begin(path);
  }
}

void PictureQueue::Begin(const std::string& path) {
  in_work_[path] = ++now_;
  std::shared_ptr<FileSystem> files;
  if (!idle_files_.empty()) {
    files = std::move(idle_files_.back());
    idle_files_.pop_back();
  } else {
    files = files_.ForOtherThread();
  }
  ReadResult read;
  if (files == nullptr) read = files_.Read(path, kMostFileBytes + 1);

  threads_.start([this, path, files, most = most_, begun = now_, read = std::move(read)]() mutable {
    if (files != nullptr) read = files->Read(path, kMostFileBytes + 1);
    Kept arrived{.picture = Decoded(read, most), .most = most, .begun = begun};
    QMetaObject::invokeMethod(
        this,
        [this, path, files, arrived = std::move(arrived)] {
          if (files != nullptr) idle_files_.push_back(files);
          Take(path, arrived);
        },
        Qt::QueuedConnection);
  });
}

void PictureQueue::Take(const std::string& path, const Kept& arrived) {
  in_work_.erase(path);
  if (arrived.begun > forgotten_) {
    // What has scrolled away while it was read is the first to go, and not read anew.
    const bool wanted = std::erase(waiting_, path) > 0 || arrived.begun > asked_;
    Kept& kept = kept_[path];
    kept_bytes_ += arrived.picture.image.sizeInBytes() - kept.picture.image.sizeInBytes();
    kept = arrived;
    if (wanted) kept.wanted = now_;
    if (wanted && !IsCurrent(path)) waiting_.push_front(path);
    MakeRoom();
  }
  BeginMore();
  if (arrived.begun > forgotten_) emit Arrived(path);
}

// What was wanted last stays, whatever its size.
void PictureQueue::MakeRoom() {
  while (kept_bytes_ > kMostKeptBytes) {
    const auto oldest =
        std::ranges::min_element(kept_, {}, [](const auto& kept) { return kept.second.wanted; });
    if (oldest->second.wanted >= asked_) return;
    kept_bytes_ -= oldest->second.picture.image.sizeInBytes();
    kept_.erase(oldest);
  }
}

}  // namespace vellumark
