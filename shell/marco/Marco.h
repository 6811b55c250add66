#pragma once

#include "shell/marco/Formulario.h"
#include "shell/marco/TiraTitulo.h"

#include <QFrame>
#include <QLabel>
#include <QList>
#include <QPushButton>

namespace shell {

// Paints a panel, a bar or its buttons in the bar's colour, 216,212,208.
void PintarPanel(QWidget* control);

// The chrome every screen and dialog wears: the title strip lblTitulo with its close box cmdClose,
// the working frame fraMain, the bar fraBarra along the foot with its buttons cmdBoton(i) and the
// mode word lblEstado. Lengths in twips; each control's objectName is its given name.
class Marco : public Formulario {
    Q_OBJECT
public:
    Marco(const QString& titulo, double ancho, double alto, QWidget* parent = nullptr);

    TiraTitulo* lblTitulo;
    QPushButton* cmdClose;
    QFrame* fraMain;
    QFrame* fraBarra;
    QLabel* lblEstado;
    QList<QPushButton*> cmdBoton; // by index; the bar's handler dispatches on the caption

    static const QColor kColorBarra; // 216,212,208

    // The standard layout, in this order: title and close box across the top, the bar along the foot,
    // the mode word at its right, fraMain filling the rest (unless the screen places its own frames),
    // every control that takes input only while editing disabled, the bar's colours.
    void AjustarPantalla();
    // Its first part alone, for the screens with no mode word or working frame of their own: the title
    // with one blank and the close box, the bar along the foot, the bar's colours.
    void AjustarTituloYBarra();

protected:
    // A button of the bar, 1,200 x 375 twips, 120 from the bar's top, with the icon of its caption.
    QPushButton* crearBoton(int indice, const QString& caption, double left, bool visible = true,
                            double ancho = 1200);
    // A caption of lblFieldLabel in fraMain, or in another frame or panel of the screen.
    QLabel* etiqueta(const QString& texto, double left, double top, double ancho = 800) {
        return etiquetaEn(fraMain, texto, left, top, ancho);
    }
    QLabel* etiquetaEn(QWidget* padre, const QString& texto, double left, double top, double ancho = 800);
    // A control placed in fraMain, or in another frame or panel of the screen.
    template <class T>
    T* campo(const QString& nombre, double left, double top, double ancho, double alto = 285) {
        return campoEn<T>(fraMain, nombre, left, top, ancho, alto);
    }
    template <class T>
    T* campoEn(QWidget* padre, const QString& nombre, double left, double top, double ancho,
               double alto = 285) {
        auto* c = new T(padre);
        c->setObjectName(nombre);
        colocarEn(c, left, top, ancho, alto);
        return c;
    }

    // A screen whose frames stand where its design puts them (a frame array, a second frame beside
    // fraMain) keeps them there: AjustarPantalla does not stretch fraMain over the working area.
    void setColocarFraMain(bool colocar) { colocarFraMain_ = colocar; }
    // The controls that take input only while editing: fraMain, and whatever the screen adds (a second
    // frame, the buttons that bind a client, a panel), enabled and disabled together.
    void HabilitarAlEditar(QWidget* control) { controlesDeEdicion_ << control; }
    void HabilitarEdicion(bool habilitar);

    virtual void cmdBoton_Click(int Index) { Q_UNUSED(Index); }
    virtual void cmdClose_Click() { Unload(); }

private:
    static void colocarEn(QWidget* c, double left, double top, double ancho, double alto);
    int etiquetas_ = 0;
    bool colocarFraMain_ = true;
    QList<QWidget*> controlesDeEdicion_;
};

} // namespace shell
