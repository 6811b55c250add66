#pragma once

#include "shell/controles/ControlDeTexto.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace shell {

// The text box of the screens: one line, placed by the screen in twips. Amounts are right-aligned
// with setAlignment(Qt::AlignRight | Qt::AlignVCenter). Tabbing in leaves the text as it was
// selected before; selecting all on arrival is a field kind (CamposDeTexto.h).
class CajaTexto : public QLineEdit, public ControlDeTexto {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)

public:
    explicit CajaTexto(QWidget* parent = nullptr);

    QString Text() const override { return text(); }
    void setText(const QString& texto) override;
    int SelStart() const override;
    void setSelStart(int inicio) override;
    int SelLength() const override;
    void setSelLength(int largo) override;
    QString SelText() const { return selectedText(); }
    bool Locked() const override { return isReadOnly(); }
    void setLocked(bool bloqueado) override { setReadOnly(bloqueado); }

    // 0 is no limit.
    int MaxLength() const;
    void setMaxLength(int largo);

protected:
    bool event(QEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    int inicioGuardado_ = 0;
    int largoGuardado_ = 0;
};

// A text box of several lines with a vertical scroll bar (remarks, "En concepto de:"). Tab moves on
// as in a one-line box.
class CajaTextoMultilinea : public QPlainTextEdit, public ControlDeTexto {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)

public:
    explicit CajaTextoMultilinea(QWidget* parent = nullptr);

    QString Text() const override { return toPlainText(); }
    void setText(const QString& texto) override;
    int SelStart() const override;
    void setSelStart(int inicio) override;
    int SelLength() const override;
    void setSelLength(int largo) override;
    bool Locked() const override { return isReadOnly(); }
    void setLocked(bool bloqueado) override;

protected:
    bool event(QEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
};

} // namespace shell
