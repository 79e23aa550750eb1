#pragma once

#include <QImage>

class QWidget;

namespace quillon {

/// What a person has before them: the desk with the dialogs and menus that stand on it. Each dialog gets a
/// plain strip with its title, which on a screen the window manager draws.
QImage DeskSnapshot(QWidget& desk);

}  // namespace quillon
