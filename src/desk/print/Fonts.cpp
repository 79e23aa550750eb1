#include "desk/print/Fonts.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QStandardPaths>
#include <algorithm>
#include <map>

namespace quillon {

namespace {

constexpr const char* kDevanagari = "Lohit Devanagari";

// Families that are loaded from the shared data folders when the system's own list does not have them.
struct FontSource {
  const char* family;
  const char* folder;
  const char* files;
};
constexpr FontSource kSources[] = {
    {"Tahoma", "wine/fonts", "tahoma.ttf"},
    {"Liberation Sans", "fonts/truetype/liberation", "Liberation*.ttf"},
    {"DejaVu Sans", "fonts/truetype/dejavu", "DejaVuSans*.ttf"},
    {kDevanagari, "fonts/truetype/lohit-devanagari", "*.ttf"},
};

struct Substitute {
  const char* family;
  const char* with;
};
constexpr Substitute kSubstitutes[] = {
    {"Arial", "Liberation Sans"},
    {"Helvetica", "Liberation Sans"},
    {"Arial Narrow", "Liberation Sans Narrow"},
    {"MS Sans Serif", "Liberation Sans"},
    {"Microsoft Sans Serif", "Liberation Sans"},
    {"Times New Roman", "Liberation Serif"},
    {"Times", "Liberation Serif"},
    {"MS Serif", "Liberation Serif"},
    {"Courier New", "Liberation Mono"},
    {"Courier", "Liberation Mono"},
    {"Verdana", "DejaVu Sans"},
    {"Segoe UI", "Tahoma"},
};

void LoadFrom(const FontSource& source) {
  const QStringList folders =
      QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QString::fromLatin1(source.folder),
                                QStandardPaths::LocateDirectory) +
      QStringList{QStringLiteral("/usr/share/") + QString::fromLatin1(source.folder)};
  for (const QString& folder : folders) {
    const QDir dir(folder);
    const QStringList files = dir.entryList({QString::fromLatin1(source.files)}, QDir::Files);
    for (const QString& file : files) QFontDatabase::addApplicationFont(dir.filePath(file));
    if (!files.isEmpty()) return;
  }
}

/// Whether the machine has a Tahoma of its own, with real bold outlines.
bool LoadSubstitutes() {
  const bool ownTahoma = QFontDatabase::hasFamily(QStringLiteral("Tahoma"));
  for (const FontSource& source : kSources) {
    if (!QFontDatabase::hasFamily(QString::fromLatin1(source.family))) LoadFrom(source);
  }
  return ownTahoma;
}

QString FindFamily(const std::string& name, bool bold) {
  static const bool ownTahoma = LoadSubstitutes();
  QString wanted = QString::fromStdString(name);
  // The free Tahoma has bold widths on regular outlines; this one is as wide and really bold.
  if (bold && !ownTahoma && wanted.compare(QLatin1String("Tahoma"), Qt::CaseInsensitive) == 0)
    return QStringLiteral("DejaVu Sans Condensed");
  if (QFontDatabase::hasFamily(wanted)) return wanted;
  for (const Substitute& known : kSubstitutes) {
    if (wanted.compare(QLatin1String(known.family), Qt::CaseInsensitive) == 0)
      return QString::fromLatin1(known.with);
  }
  return wanted;
}

/// Asking the list of families is slow, and a page asks for each text.
const QString& FamilyFor(const Font& font) {
  static std::map<std::pair<std::string, bool>, QString> known;
  const auto [entry, isNew] = known.try_emplace({font.Name, font.Bold});
  if (isNew) entry->second = FindFamily(font.Name, font.Bold);
  return entry->second;
}

}  // namespace

bool Fonts::Has(const std::string& name) {
  const QString wanted = QString::fromStdString(name);
  const auto named = [&wanted](const auto& known) {
    return wanted.compare(QLatin1String(known.family), Qt::CaseInsensitive) == 0;
  };
  return std::any_of(std::begin(kSources), std::end(kSources), named) ||
         std::any_of(std::begin(kSubstitutes), std::end(kSubstitutes), named) ||
         QFontDatabase::hasFamily(wanted);
}

QFont Fonts::Of(const Font& font) {
  QFont made;
  made.setFamilies({FamilyFor(font), QString::fromLatin1(kDevanagari), QStringLiteral("DejaVu Sans")});
  made.setPointSizeF(font.Size > 0 ? font.Size : Font().Size);
  made.setBold(font.Bold);
  made.setItalic(font.Italic);
  made.setUnderline(font.Underline);
  made.setKerning(false);
  made.setHintingPreference(QFont::PreferNoHinting);
  made.setLetterSpacing(QFont::PercentageSpacing, 100);  // set at all, it switches ligatures off
  return made;
}

}  // namespace quillon
