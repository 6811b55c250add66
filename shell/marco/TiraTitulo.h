#pragma once

#include <QLabel>
#include <QPointF>

namespace shell {

// The painted title strip (lblTitulo). The window has no native title bar, so dragging the strip
// moves it: every pointer move with no button held records the origin, and a move with the left
// button alone shifts the window by the distance from that origin. There is no button-down handler,
// so a drag begun without a hover first uses the last position seen.
class TiraTitulo : public QLabel {
    Q_OBJECT
public:
    explicit TiraTitulo(QWidget* parent = nullptr);

    QPointF origen() const { return origen_; }

protected:
    void mouseMoveEvent(QMouseEvent* evento) override;

private:
    QPointF origen_;
};

} // namespace shell
