#include "desk/print/OutputFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>
#include <sys/file.h>

#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr qint64 kStillNew = 10;  // seconds

/// A program that writes holds the lock on its file; the machine frees it even when the program is killed.
bool Lock(const QFile& file) { return flock(file.handle(), LOCK_EX | LOCK_NB) == 0; }

/// Removes what killed programs left half written. A file that is new may be about to be locked.
void RemoveLeftovers(const QDir& dir) {
  static const QRegularExpression made(QStringLiteral("^\\.[a-z]+-[0-9a-f]{32}\\.part$"));
  for (const QString& name : dir.entryList({QStringLiteral(".*.part")}, QDir::Files | QDir::Hidden)) {
    QFile file(dir.filePath(name));
    const QDateTime written = QFileInfo(file).lastModified();
    if (!made.match(name).hasMatch() || written.secsTo(QDateTime::currentDateTime()) < kStillNew) continue;
    if (file.open(QIODevice::ReadOnly) && Lock(file)) file.remove();
  }
}

}  // namespace

OutputFile::OutputFile(const std::string& folder, std::string stem, std::string extension)
    : folder_(folder.empty() ? "." : folder), stem_(std::move(stem)), extension_(std::move(extension)) {
  const QDir dir(QString::fromStdString(folder_));
  dir.mkpath(QStringLiteral("."));
  RemoveLeftovers(dir);
  const QString hidden = QStringLiteral(".%1-%2.part")
                             .arg(QString::fromStdString(stem_), QUuid::createUuid().toString(QUuid::Id128));
  file_ = std::make_unique<QFile>(dir.filePath(hidden));
  if (!file_->open(QIODevice::WriteOnly)) {
    throw HostError("The folder for printed files cannot be written to: " + folder_ + " (" +
                    file_->errorString().toStdString() + ")");
  }
  Lock(*file_);
}

OutputFile::~OutputFile() {
  // By its name: a file whose end cannot be written to a full disk refuses to be removed itself.
  if (!file_) return;
  const QString name = file_->fileName();
  file_.reset();
  QFile::remove(name);
}

std::string OutputFile::Finish() {
  if (!file_->flush() || file_->error() != QFileDevice::NoError) {
    throw HostError("The file could not be written whole in " + folder_ + ": " +
                    file_->errorString().toStdString());
  }
  file_->close();
  const QDir dir(QString::fromStdString(folder_));
  for (int number = 1;; ++number) {
    const std::string name = stem_ + "-" + std::to_string(number) + extension_;
    const QString path = dir.filePath(QString::fromStdString(name));
    if (QFile::exists(path)) continue;
    if (file_->rename(path)) {
      file_.reset();
      return path.toStdString();
    }
    if (!QFile::exists(path)) throw HostError("The printed file could not be named " + path.toStdString());
  }
}

}  // namespace quillon
