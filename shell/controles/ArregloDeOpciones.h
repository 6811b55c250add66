#pragma once

#include <QButtonGroup>
#include <QList>
#include <QObject>
#include <QRadioButton>
#include <functional>

namespace shell {

// A control array of option buttons (optTipo(0), optTipo(1), ...): one group, reached by index.
// Selecting a button, by the clerk's click or in code, runs the array's Click handler with its index;
// "none selected" is a state of its own (Valor() -1), as a screen that opens with no option chosen
// has it.
class ArregloDeOpciones : public QObject {
    Q_OBJECT
public:
    // `nombre` is the array's given name; each button is named "nombre(i)".
    explicit ArregloDeOpciones(const QString& nombre, QObject* parent = nullptr);

    // Makes the button of index `indice`, in `padre`, placed in twips.
    QRadioButton* agregar(int indice, const QString& caption, QWidget* padre, double left, double top,
                          double ancho, double alto = 255);

    QRadioButton* operator[](int indice) const { return botones_.value(indice); }
    QRadioButton* operator()(int indice) const { return botones_.value(indice); }
    int Count() const { return static_cast<int>(botones_.size()); }

    // The index selected; -1 when none is.
    int Valor() const;
    // Selects one as a click does: the handler runs when the selection changes.
    void Seleccionar(int indice);
    // Leaves none selected; no handler runs.
    void Ninguna();

    void alHacerClic(std::function<void(int Index)> manejador) { clic_ = std::move(manejador); }

private:
    QString nombre_;
    QButtonGroup grupo_; // one group whatever frame each button stands in
    QList<QRadioButton*> botones_;
    std::function<void(int)> clic_;
};

} // namespace shell
