#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillon {

/// Reads back what a PDF shows, by the tools of poppler.
class PdfReader {
 public:
  static constexpr double kTwipsPerPoint = 20;
  static constexpr double kTwipsPerMillimetre = 1440 / 25.4;

  /// A word and the box of its line's font, in twips from the page's top left corner.
  struct Word {
    int page = 0;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    std::string text;
  };
  struct Page {
    double width = 0;
    double height = 0;
  };

  static bool IsInstalled() {
    return std::system("command -v pdftotext >/dev/null && command -v pdftoppm >/dev/null") == 0;
  }

  explicit PdfReader(const std::string& file) : file_(file) { Read(Run("pdftotext -bbox '" + file + "' -")); }

  const std::vector<Page>& Pages() const { return pages_; }
  const std::vector<Word>& Words() const { return words_; }

  /// The text of a page as lines, or of all pages.
  std::string Text(int page = 0) const {
    const std::string number = std::to_string(page);
    return Run("pdftotext -layout " + (page == 0 ? "" : "-f " + number + " -l " + number) + " '" + file_ +
               "' -");
  }

  /// The first word of that text; throws when it is on no page.
  const Word& Find(const std::string& text, int page = 0) const {
    for (const Word& word : words_) {
      if (word.text == text && (page == 0 || word.page == page)) return word;
    }
    throw std::runtime_error("Not printed: " + text);
  }
  std::vector<Word> FindAll(const std::string& text) const {
    std::vector<Word> found;
    for (const Word& word : words_) {
      if (word.text == text) found.push_back(word);
    }
    return found;
  }

  /// How many dots of a page's rectangle (twips) are dark, at 200 dots to the inch.
  long Ink(int page, double left, double top, double width, double height) const {
    const auto dots = [](double twips) { return std::to_string(static_cast<int>(twips * 200 / 1440)); };
    const std::string number = std::to_string(page);
    const std::string image =
        Run("pdftoppm -gray -r 200 -f " + number + " -l " + number + " -x " + dots(left) + " -y " +
            dots(top) + " -W " + dots(width) + " -H " + dots(height) + " '" + file_ + "'");
    std::size_t at = 0;
    for (int lines = 0; lines < 3; ++lines) at = image.find('\n', at) + 1;
    long dark = 0;
    for (; at < image.size(); ++at) dark += static_cast<unsigned char>(image[at]) < 128 ? 1 : 0;
    return dark;
  }

  static std::string Run(const std::string& command) {
    const auto close = [](FILE* pipe) { pclose(pipe); };
    const std::unique_ptr<FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
    if (!pipe) throw std::runtime_error("Does not run: " + command);
    std::string out;
    std::array<char, 65536> block{};
    while (const std::size_t size = fread(block.data(), 1, block.size(), pipe.get()))
      out.append(block.data(), size);
    return out;
  }

 private:
  static double Number(const std::string& line, const std::string& name) {
    const std::size_t at = line.find(name + "=\"");
    return at == std::string::npos ? 0 : std::strtod(line.c_str() + at + name.size() + 2, nullptr);
  }

  void Read(const std::string& out) {
    for (std::size_t at = 0; at < out.size();) {
      const std::size_t end = std::min(out.find('\n', at), out.size());
      const std::string line = out.substr(at, end - at);
      at = end + 1;
      if (line.find("<page ") != std::string::npos) {
        pages_.push_back({Number(line, "width") * kTwipsPerPoint, Number(line, "height") * kTwipsPerPoint});
      } else if (line.find("<word ") != std::string::npos) {
        const std::size_t text = line.find('>') + 1;
        words_.push_back({static_cast<int>(pages_.size()), Number(line, "xMin") * kTwipsPerPoint,
                          Number(line, "yMin") * kTwipsPerPoint, Number(line, "xMax") * kTwipsPerPoint,
                          Number(line, "yMax") * kTwipsPerPoint,
                          line.substr(text, line.find('<', text) - text)});
      }
    }
  }

  std::string file_;
  std::vector<Page> pages_;
  std::vector<Word> words_;
};

}  // namespace quillon
