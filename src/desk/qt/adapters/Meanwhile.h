#pragma once

#include <QKeyEvent>
#include <QObject>
#include <memory>
#include <vector>

namespace quillon {

/// What a person does while the windows paint in the midst of an act: keys are kept and come back in their
/// order when it is over, a mouse that is pressed meanwhile has missed.
class Meanwhile : public QObject {
 public:
  /// For the length of a block the windows paint. Blocks within one another count as one.
  class Block {
   public:
    /// Esc, where it is listened for, is not kept but told by IsEscaped.
    explicit Block(bool hearsEscape);
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block();

    bool IsEscaped() const;
  };

  static bool IsOn();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Meanwhile();
  static Meanwhile& Get();
  void Release();

  std::vector<std::unique_ptr<QKeyEvent>> typed_;
  int blocks_ = 0;
  bool hearsEscape_ = false;
  bool isEscaped_ = false;
};

}  // namespace quillon
