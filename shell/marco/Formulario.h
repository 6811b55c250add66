#pragma once

#include <QWidget>

namespace shell {

// A window of the system: frameless (the screens paint their own title strip), placed and sized in
// twips, loaded and unloaded as one shared instance (see Common's Pantalla<T>()).
//
// Life cycle: the instance is built and Form_Load runs on its first access; Unload asks
// Form_QueryUnload (which may cancel), hides the window, marks it unloaded and destroys it later, so
// that the next access builds a fresh one. Show() is modeless; ShowModal() returns once the screen has
// unloaded (or, under a test's modal driver, once the driver has acted).
class Formulario : public QWidget {
    Q_OBJECT
public:
    explicit Formulario(QWidget* parent = nullptr);

    double Left() const;
    double Top() const;
    double Width() const;
    double Height() const;
    void setLeft(double twips);
    void setTop(double twips);
    void setWidth(double twips);
    void setHeight(double twips);
    void Move(double left, double top);

    void Show();
    // Raises and activates the window (a screen already open is only brought forward).
    void traerAlFrente();
    // Shows the screen modally. A screen standing open modelessly with changes pending (Common's
    // PantallaModal keeps only such a one) is not shown: the clerk is told to finish there first.
    // One standing open with nothing pending becomes modal as it stands.
    void ShowModal();
    // Returns false when Form_QueryUnload cancelled it.
    bool Unload();
    bool descargado() const { return descargado_; }
    // Whether the screen holds something the clerk has typed and not saved (a record screen editing).
    virtual bool tieneCambiosPendientes() const { return false; }

    // Runs Form_Load once, through the handler wrapper. Common calls it on first access.
    void cargar();

    // With KeyPreview, Enter in a control that is not a push button (a text box, a check box, an
    // option button...) moves on as Tab does.
    void setKeyPreview(bool activo) { keyPreview_ = activo; }
    bool KeyPreview() const { return keyPreview_; }

Q_SIGNALS:
    void alDescargar();

protected:
    virtual void Form_Load() {}
    virtual void Form_QueryUnload(bool& cancelar) { Q_UNUSED(cancelar); }
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool cargado_ = false;
    bool descargado_ = false;
    bool keyPreview_ = false;
};

} // namespace shell
