#pragma once
// Texts of several lines, whether typed or read.

#include <QSize>
#include <cstdint>

class QPlainTextEdit;

namespace zu::desktop {

/// Size of so many characters and lines with the frame; 0: as usual.
QSize size_of_text(const QPlainTextEdit* control, std::uint32_t width, std::uint32_t lines);
QSize least_size_of_text(const QPlainTextEdit* control, QSize wanted);
void set_monospaced(QPlainTextEdit* control, bool wanted);

}  // namespace zu::desktop
