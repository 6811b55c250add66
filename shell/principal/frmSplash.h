#pragma once

#include "shell/marco/Formulario.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace shell {

// The start-up splash, which is also the About box: a borderless face centred on the display that
// closes itself after five ticks of a second, or at once on a click or a key. "Cerrar el sistema"
// shows only when the About entry of the menu asked for it (TextoSeleccionado "Salir") and ends the
// program.
class frmSplash : public Formulario {
    Q_OBJECT
public:
    frmSplash();

    QWidget* Picture1;
    QLabel* imgLogo;
    QLabel* Label1;
    QLabel* Label2;
    QLabel* lblVersion;
    QTimer* Timer1;
    QPushButton* cmdClose;

    void Timer1_Timer();

protected:
    void Form_Load() override;
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    float ticks_ = 0;
};

} // namespace shell
