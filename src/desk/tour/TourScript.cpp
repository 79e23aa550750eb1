#include "desk/tour/TourScript.h"

#include <QStringList>
#include <algorithm>
#include <fstream>

#include "host/values/Errors.h"

namespace quillon {

namespace {

std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& script) {
  if (!std::filesystem::is_directory(script)) return {script};
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(script)) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

std::vector<TourAct> ReadTour(std::istream& in, const std::string& name) {
  const QStringList words = {QStringLiteral("open"),   QStringLiteral("window"), QStringLiteral("press"),
                             QStringLiteral("type"),   QStringLiteral("see"),    QStringLiteral("ask"),
                             QStringLiteral("picture")};
  std::vector<TourAct> acts;
  std::string text;
  for (int line = 1; std::getline(in, text); ++line) {
    const QString act = QString::fromStdString(text).trimmed();
    if (act.isEmpty() || act.startsWith(QLatin1Char('#'))) continue;
    const QString what = act.section(QLatin1Char(' '), 0, 0);
    if (!words.contains(what)) {
      throw HostError("Line " + std::to_string(line) + " of " + name + ": \"" + what.toStdString() +
                      "\" is nothing that a tour can do");
    }
    acts.push_back({QString::fromStdString(name), line, what, act.mid(what.size()).trimmed()});
  }
  return acts;
}

std::vector<TourAct> ReadTourFiles(const std::filesystem::path& script) {
  std::vector<TourAct> all;
  for (const std::filesystem::path& file : FilesOf(script)) {
    std::ifstream in(file);
    if (!in) throw HostError("The script " + file.string() + " cannot be read");
    const std::vector<TourAct> acts = ReadTour(in, file.filename().string());
    all.insert(all.end(), acts.begin(), acts.end());
  }
  return all;
}

}  // namespace quillon
