#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

class QCheckBox;
class QLabel;

namespace store {
class Adodc;
}

namespace shell {

class ComboDatos;
class ControlDeTexto;

// A control bound to one field (DataField) of a data control's current row (DataSource).
//
// The control shows the field whenever the current row changes or is read again (Refresh), and
// whenever the field's value changes; it shows nothing when there is no current row. A display
// format such as "0.00" applies to what is shown. A text field writes its text back into the row when
// the user leaves it (after its Validate handlers) and when the program sets its text, in both cases
// only if the text differs from what the row gave; a check box or data combo writes when its state
// changes. The value goes through the field's setValue, which converts it to the column's type (empty
// text to a number or a date is Null); a value the column can't hold fails through the handler
// wrapper to the fatal path. With no current row nothing is written: it is the row's Update that
// then fails.
//
// The binding belongs to the control and goes with it. A screen declares it once:
//     enlazar(txtNombre, adoBanco, "Nombre");
//     enlazar(txtLimite, adoCliente, "Limite", "0.00");
class EnlaceDatos : public QObject {
    Q_OBJECT
public:
    ~EnlaceDatos() override;

    store::Adodc* DataSource() const { return datos_; }
    QString DataField() const { return campo_; }
    QString DataFormat() const { return formato_; }

    // Shows the current row's value again.
    void mostrar();

    // The binding of a control; nullptr when it has none.
    static EnlaceDatos* de(const QObject* control);

protected:
    EnlaceDatos(QObject* control, store::Adodc* datos, const QString& campo, const QString& formato);

    // Puts the value (invalid when Null or when there is no row) and its text as shown.
    virtual void poner(const QVariant& valor, const QString& texto) = 0;

    // What the control showed last, as text.
    QString mostrado() const { return mostrado_; }
    // True while the binding itself is putting a value in the control.
    bool mostrando() const { return mostrando_; }
    // Into the current row's field, when there is one.
    void escribir(const QVariant& valor);

private:
    bool hayFilaActual() const;
    QVariant valorActual() const;
    QString textoDe(const QVariant& valor) const;
    void filaCambiada();
    void valoresCambiados();

    QPointer<store::Adodc> datos_;
    QString campo_, formato_;
    QString mostrado_;
    bool mostrando_ = false;
    bool escribiendo_ = false;
};

EnlaceDatos* enlazar(ControlDeTexto* caja, store::Adodc* datos, const QString& campo,
                     const QString& formato = {});
EnlaceDatos* enlazar(QCheckBox* casilla, store::Adodc* datos, const QString& campo);
EnlaceDatos* enlazar(ComboDatos* combo, store::Adodc* datos, const QString& campo);
// A label only shows the field.
EnlaceDatos* enlazar(QLabel* etiqueta, store::Adodc* datos, const QString& campo,
                     const QString& formato = {});

} // namespace shell
