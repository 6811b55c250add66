#pragma once

#include "shell/controles/Teclas.h"

#include <QColor>
#include <QPointer>
#include <QString>
#include <QVector>
#include <functional>
#include <memory>

class QFocusEvent;
class QWidget;

namespace shell {

// What a text field offers the screens, whatever widget shows it (one line or several): its text and
// selection, Tag, Locked, colours, and the events a screen handles, each run through Common::Manejar
// in the order the handlers were attached.
//
// - GotFocus: the field gets focus from the user or the program; not when its window is activated
//   again with the focus where it was. A click runs it after the click has placed the caret, so a
//   selection made there stays.
// - Validate: focus leaves the field for another control of its window (Tab, Enter moving on, a
//   click elsewhere, a button pressed, focus set by the program). A push button takes focus on press,
//   so the field's validate has run before the button's click. Never when the window merely loses
//   activation or the field is being disabled or hidden.
// - KeyDown (code, shift) then KeyPress (character code, which a handler may replace or set to 0 to
//   swallow).
// - Change: the text changed, by typing or by the program. DblClick.
class ControlDeTexto {
public:
    using Manejador = std::function<void()>;
    using ManejadorKeyPress = std::function<void(int& KeyAscii)>;
    using ManejadorKeyDown = std::function<void(int KeyCode, int Shift)>;

    virtual ~ControlDeTexto();

    virtual QString Text() const = 0;
    // Setting the text puts the caret at the start.
    virtual void setText(const QString& texto) = 0;
    virtual int SelStart() const = 0;
    virtual void setSelStart(int inicio) = 0; // the caret, nothing selected
    virtual int SelLength() const = 0;
    virtual void setSelLength(int largo) = 0; // from SelStart on
    virtual bool Locked() const = 0;
    // Refuses typing; the field still takes focus and its text can be selected.
    virtual void setLocked(bool bloqueado) = 0;

    QString Tag() const { return tag_; }
    void setTag(const QString& tag) { tag_ = tag; }
    QColor BackColor() const;
    void setBackColor(const QColor& color);
    QColor ForeColor() const;
    void setForeColor(const QColor& color);
    // A field out of the tab order still takes focus by the pointer.
    bool TabStop() const;
    void setTabStop(bool enOrden);

    void alRecibirFoco(Manejador manejador);           // GotFocus
    void alValidar(Manejador manejador);               // Validate
    void alPresionarTecla(ManejadorKeyDown manejador); // KeyDown
    void alTeclear(ManejadorKeyPress manejador);       // KeyPress
    void alCambiar(Manejador manejador);               // Change
    void alHacerDobleClic(Manejador manejador);        // DblClick

    // For bindings to a row: runs after the Validate handlers when the field is left, and after
    // every setText by the program.
    void despuesDeValidar(Manejador manejador);
    void alFijarTextoPorCodigo(Manejador manejador);

    QWidget* control() const { return control_; }

protected:
    explicit ControlDeTexto(QWidget* control);

    // Called by the widget's own event handlers.
    void focoRecibido(const QFocusEvent* evento);
    void focoPerdido(const QFocusEvent* evento);
    void ratonPresionado();
    void teclaAnticipada(const QKeyEvent* evento);
    // KeyDown and KeyPress; gives the event the widget is to process: the one given, a replacement
    // kept in `sustituto`, or nullptr when a handler swallowed the character.
    QKeyEvent* teclaPresionada(QKeyEvent* evento, std::unique_ptr<QKeyEvent>& sustituto);
    void dobleClic();
    void textoCambiado();
    void textoFijadoPorCodigo();

private:
    void correr(const QVector<Manejador>& manejadores);
    void avisarFocoPendiente();
    void avisarTeclaAbajo(const QKeyEvent* evento);

    QWidget* control_;
    QPointer<QWidget> vivo_;
    QString tag_;
    QVector<Manejador> recibirFoco_, validar_, despuesDeValidar_, cambiar_, dobleClic_, fijadoPorCodigo_;
    QVector<ManejadorKeyDown> teclaAbajo_;
    QVector<ManejadorKeyPress> teclear_;
    AvisoDeTecla aviso_;
    bool focoPorRatonPendiente_ = false;
    bool volviendoAlActivar_ = false;
};

} // namespace shell
