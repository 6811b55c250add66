#pragma once

#include <QComboBox>
#include <QPointer>
#include <QVariant>
#include <QVector>
#include <functional>

namespace store {
class Adodc;
class Recordset;
} // namespace store

namespace shell {

// The data combo: a list of the rows of a row source, each shown by its ListField and standing for
// its BoundColumn. BoundText is the bound value of the chosen row as text; empty means none chosen, and
// the box then shows nothing (also when it is given a value no row has, such as a bank key 0).
// The list is read again whenever the row source is refreshed or moved, keeping the choice when its
// row is still there. The user picks from the list; nothing can be typed that isn't in it.
class ComboDatos : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QString BoundText READ BoundText WRITE setBoundText)
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)

public:
    using Manejador = std::function<void()>;

    explicit ComboDatos(QWidget* parent = nullptr);

    // The row source: a screen's data control, or a recordset it has opened. Not owned.
    void setRowSource(store::Adodc* datos);
    void setRowSource(store::Recordset* filas);
    QString ListField() const { return campoLista_; }
    void setListField(const QString& campo);
    QString BoundColumn() const { return campoEnlazado_; }
    void setBoundColumn(const QString& campo);

    QString BoundText() const;
    void setBoundText(const QString& valor);
    QString Text() const { return currentText(); }
    QString Tag() const { return tag_; }
    void setTag(const QString& tag) { tag_ = tag; }

    // Reads the row source's rows again.
    void ReFill();

    // Change: the choice changed, by the user or the program (not by reading the list again when the
    // same row stays chosen). Run through Common::Manejar.
    void alCambiar(Manejador manejador);
    // Click: the user picked a row.
    void alElegir(Manejador manejador);

private:
    void filasCambiadas();
    void cambioDeEleccion();
    void correr(const QVector<Manejador>& manejadores);
    int indiceDe(const QString& valor) const;

    QPointer<store::Recordset> filas_;
    QString campoLista_, campoEnlazado_, tag_;
    QVector<QVariant> enlazados_;
    QString ultimoEnlazado_;
    // The value last given or picked: chosen again when the list is read again, so a value given
    // before the row source was read is chosen once it is.
    QString pedido_;
    bool leyendo_ = false;
    QVector<Manejador> cambiar_, elegir_;
};

} // namespace shell
