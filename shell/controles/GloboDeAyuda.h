#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

namespace shell {

// A hint that looks like a speech balloon instead of the platform's plain rectangle, drawn by the
// program: a rounded body (corners of 15 x 15 pixels) framed in dark grey, a tail at its top left
// pointing up at the pointer, and the text in the hint colours with a light shadow behind it (the text
// is drawn first in the light 3D colour, then one pixel up and to the left in the hint's text colour).
// Line breaks in the text (CR LF) are kept.
//
// The balloon watches its control: when the pointer rests on it, the balloon shows below and to the
// right of the pointer, its window at the pointer's x - 2, y + 20, so that the tail's point stands
// just under the pointer; it is never flipped, even near the foot of the display. It goes when the
// pointer leaves the control, a button or key is pressed there, or the control hides. Its window is
// a child window of the screen, so it lives and goes with it.
//
// It is made through Common::CrearTip, which keeps it in Common's table of tips; every event the
// window receives goes through Common::CustomToolTip (CustomToolTip.h), which paints the balloon and
// hands the rest to the window's own handling.
class GloboDeAyuda : public QWidget {
    Q_OBJECT
public:
    // Margins, in pixels: the tail's height above the body, and the room around the text.
    static constexpr int kAltoCola = 8;
    static constexpr int kMargen = 8;

    GloboDeAyuda(QWidget& control, const QString& texto, QWidget& pantalla);

    QString Texto() const { return texto_; }
    QWidget* Control() const { return control_; }

    // Shows the balloon for the pointer at this global position.
    void MostrarEn(const QPoint& puntero);
    // The text's size plus the margins and the tail: 16 wider, 24 taller.
    QSize sizeHint() const override;

    // Draws the balloon; called for the window's paint events.
    void PintarGlobo();
    // The window's own handling of an event, as a plain widget has it.
    bool EventoDeVentana(QEvent* evento) { return QWidget::event(evento); }

protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QString textoAMostrar() const;
    QRect rectanguloDelTexto() const;

    QPointer<QWidget> control_;
    QString texto_;
};

} // namespace shell
