#pragma once

#include <QDate>
#include <QDateEdit>
#include <QVector>
#include <functional>

namespace shell {

// The date picker: shows "dd/MM/yyyy", opens a calendar, starts on today's date (runtime::Hoy).
// Tab leaves it for the next control (the arrow keys move between day, month and year); Enter moves on
// as Tab does, and where the screen already moves on with Enter, the screen's handling is the only one.
class SelectorFecha : public QDateEdit {
    Q_OBJECT
public:
    using Manejador = std::function<void()>;

    explicit SelectorFecha(QWidget* parent = nullptr);

    QDate Value() const { return date(); }
    void setValue(const QDate& fecha);
    // Text is read day first ("22/11/2026"). A value that is no date throws std::invalid_argument, as
    // assigning one to the picker is an error.
    void setValue(const QString& texto);
    void setValue(const char* texto) { setValue(QString::fromUtf8(texto)); }
    void setValue(const QVariant& valor);

    // Change: the date changed, by the user or the program; run through Common::Manejar.
    void alCambiar(Manejador manejador);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    bool focusNextPrevChild(bool siguiente) override;

private:
    QVector<Manejador> cambiar_;
};

} // namespace shell
