// The small pictures of many files: read and decoded beside the window's thread, and kept for as
// long as there is room.
#ifndef VELLUMARK_UI_PICTURE_QUEUE_H_
#define VELLUMARK_UI_PICTURE_QUEUE_H_

#include <QImage>
#include <QObject>
#include <QSize>
#include <QThreadPool>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace vellumark {

class FileSystem;

struct SmallPicture {
  QImage image{};       // null when there is none
  bool exists = true;   // whether the file does
  std::string fault{};  // why an existing file gives no picture, a part of a sentence
};

class PictureQueue final : public QObject {
  Q_OBJECT

 public:
  explicit PictureQueue(FileSystem& files, QObject* parent = nullptr);
  // Waits for what is being decoded at that moment.
  ~PictureQueue() override;
  PictureQueue(const PictureQueue&) = delete;
  PictureQueue& operator=(const PictureQueue&) = delete;

  // These pictures are wanted, the first ones first, none larger than `most` pixels. What was asked
  // for before and has not begun is dropped.
  void Ask(std::vector<std::string> paths, QSize most);

  // The picture of a file as far as it is there; null before. One of another size, or of a file
  // that has changed, stands until the new one comes.
  const SmallPicture* Find(const std::string& path) const;

  // The file may have changed: it is read again when it is asked for the next time.
  void Renew(const std::string& path);

  // Forgets all pictures, and drops what waits.
  void Forget();

  std::size_t Waiting() const { return waiting_.size(); }
  std::int64_t KeptBytes() const { return kept_bytes_; }

 signals:
  // Find has an answer for this file now, or another one.
  void Arrived(const std::string& path);

 private:
  struct Kept {
    SmallPicture picture{};
    QSize most{};
    std::uint64_t begun = 0;   // the moment at which reading it began
    std::uint64_t wanted = 0;  // the moment at which it was asked for last
  };

  bool IsCurrent(const std::string& path) const;
  void BeginMore();
  void Begin(const std::string& path);
  void Take(const std::string& path, const Kept& arrived);
  void MakeRoom();

  FileSystem& files_;
  // Those that no job uses. Empty for good where all reading is done on this thread.
  std::vector<std::shared_ptr<FileSystem>> idle_files_;
  QThreadPool threads_;
  std::size_t jobs_ = 0;
  QSize most_;
  std::deque<std::string> waiting_;
  std::unordered_map<std::string, Kept> kept_;
  std::unordered_map<std::string, std::uint64_t> in_work_;  // the moment of the beginning
  std::unordered_map<std::string, std::uint64_t> renewed_;  // what was read before does not count
  std::uint64_t asked_ = 0;  // the moments of the last Ask and Forget
  std::uint64_t forgotten_ = 0;
  std::uint64_t now_ = 0;  // counts what happens here
  std::int64_t kept_bytes_ = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PICTURE_QUEUE_H_
