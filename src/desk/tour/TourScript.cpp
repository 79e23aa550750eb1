#include "desk/tour/TourScript.h"

#include <QStringList>
#include <string>

#include "host/values/Errors.h"

namespace quillon {

std::vector<TourAct> ReadTour(std::istream& in) {
  const QStringList words = {QStringLiteral("open"), QStringLiteral("press"), QStringLiteral("type"),
                             QStringLiteral("see"),  QStringLiteral("ask"),   QStringLiteral("picture")};
  std::vector<TourAct> acts;
  std::string text;
  for (int line = 1; std::getline(in, text); ++line) {
    const QString act = QString::fromStdString(text).trimmed();
    if (act.isEmpty() || act.startsWith(QLatin1Char('#'))) continue;
    const QString what = act.section(QLatin1Char(' '), 0, 0);
    if (!words.contains(what)) {
      throw HostError("Line " + std::to_string(line) + " of the tour: \"" + what.toStdString() +
                      "\" is nothing that a tour can do");
    }
    acts.push_back({line, what, act.mid(what.size()).trimmed()});
  }
  return acts;
}

}  // namespace quillon
