#include "shell/controles/EnlaceDatos.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"
#include "shell/controles/ComboDatos.h"
#include "shell/controles/ControlDeTexto.h"
#include "store/Adodc.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QLabel>
#include <QWidget>

namespace shell {

namespace {

constexpr const char* kPropiedadEnlace = "enlaceDatos";

// A field read as a check box: True or a number other than 0 is checked; Null is not.
bool esVerdadero(const QVariant& valor) {
    if (runtime::EsNulo(valor)) return false;
    if (valor.typeId() == QMetaType::Bool) return valor.toBool();
    const QString texto = runtime::TextoDe(valor).trimmed();
    if (texto.compare(QLatin1String("Verdadero"), Qt::CaseInsensitive) == 0 ||
        texto.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    return runtime::Val(texto) != 0;
}

class EnlaceCaja : public EnlaceDatos {
public:
    EnlaceCaja(ControlDeTexto* caja, store::Adodc* datos, const QString& campo, const QString& formato)
        : EnlaceDatos(caja->control(), datos, campo, formato)
        , caja_(caja) {
        QPointer<EnlaceCaja> vivo(this);
        caja_->despuesDeValidar([vivo] {
            if (vivo) vivo->escribirSiCambio();
        });
        caja_->alFijarTextoPorCodigo([vivo] {
            if (vivo && !vivo->mostrando()) vivo->escribirSiCambio();
        });
    }

protected:
    void poner(const QVariant&, const QString& texto) override { caja_->setText(texto); }

private:
    void escribirSiCambio() {
        if (caja_->Text() != mostrado()) escribir(caja_->Text());
    }
    ControlDeTexto* caja_;
};

class EnlaceCasilla : public EnlaceDatos {
public:
    EnlaceCasilla(QCheckBox* casilla, store::Adodc* datos, const QString& campo)
        : EnlaceDatos(casilla, datos, campo, {})
        , casilla_(casilla) {
        connect(casilla_, &QCheckBox::toggled, this, [this](bool marcada) {
            if (!mostrando()) Common::Manejar([&] { escribir(marcada); });
        });
    }

protected:
    void poner(const QVariant& valor, const QString&) override { casilla_->setChecked(esVerdadero(valor)); }

private:
    QCheckBox* casilla_;
};

class EnlaceCombo : public EnlaceDatos {
public:
    EnlaceCombo(ComboDatos* combo, store::Adodc* datos, const QString& campo)
        : EnlaceDatos(combo, datos, campo, {})
        , combo_(combo) {
        QPointer<EnlaceCombo> vivo(this);
        combo_->alCambiar([vivo] {
            if (vivo && !vivo->mostrando() && vivo->combo_->BoundText() != vivo->mostrado())
                vivo->escribir(vivo->combo_->BoundText());
        });
    }

protected:
    void poner(const QVariant&, const QString& texto) override { combo_->setBoundText(texto); }

private:
    ComboDatos* combo_;
};

class EnlaceEtiqueta : public EnlaceDatos {
public:
    EnlaceEtiqueta(QLabel* etiqueta, store::Adodc* datos, const QString& campo, const QString& formato)
        : EnlaceDatos(etiqueta, datos, campo, formato)
        , etiqueta_(etiqueta) {}

protected:
    void poner(const QVariant&, const QString& texto) override { etiqueta_->setText(texto); }

private:
    QLabel* etiqueta_;
};

// Shows the row at once if the data control has been read; until then the control keeps its text.
EnlaceDatos* empezar(EnlaceDatos* enlace) {
    if (enlace->DataSource() && enlace->DataSource()->Recordset()->State() == store::adStateOpen)
        enlace->mostrar();
    return enlace;
}

} // namespace

EnlaceDatos::EnlaceDatos(QObject* control, store::Adodc* datos, const QString& campo, const QString& formato)
    : QObject(control)
    , datos_(datos)
    , campo_(campo)
    , formato_(formato) {
    control->setProperty(kPropiedadEnlace, QVariant::fromValue(static_cast<QObject*>(this)));
    if (datos_) {
        connect(datos_, &store::Adodc::filaActualCambiada, this, [this] { filaCambiada(); });
        connect(datos_, &store::Adodc::valoresCambiados, this, [this] { valoresCambiados(); });
    }
}

EnlaceDatos::~EnlaceDatos() = default;

EnlaceDatos* EnlaceDatos::de(const QObject* control) {
    return qobject_cast<EnlaceDatos*>(control->property(kPropiedadEnlace).value<QObject*>());
}

bool EnlaceDatos::hayFilaActual() const {
    if (!datos_) return false;
    store::Recordset* rs = datos_->Recordset();
    return rs->State() == store::adStateOpen && !rs->Eof() && !rs->Bof();
}

QVariant EnlaceDatos::valorActual() const {
    return hayFilaActual() ? datos_->Recordset()->Fields(campo_).Value() : QVariant();
}

QString EnlaceDatos::textoDe(const QVariant& valor) const {
    if (runtime::EsNulo(valor)) return {};
    return formato_.isEmpty() ? runtime::TextoDe(valor) : runtime::Format(valor, formato_);
}

void EnlaceDatos::mostrar() {
    const QVariant valor = valorActual();
    const QString texto = textoDe(valor);
    mostrado_ = texto;
    mostrando_ = true;
    try {
        poner(valor, texto);
    } catch (...) {
        mostrando_ = false;
        throw;
    }
    mostrando_ = false;
}

// The control that writes keeps what it shows (a number field's "50.00" is not redrawn as "50"); the
// text it wrote becomes what it shows for the row.
void EnlaceDatos::escribir(const QVariant& valor) {
    if (!hayFilaActual()) return;
    escribiendo_ = true;
    try {
        datos_->Recordset()->Fields(campo_).setValue(valor);
    } catch (...) {
        escribiendo_ = false;
        throw;
    }
    escribiendo_ = false;
    if (valor.typeId() == QMetaType::QString) mostrado_ = valor.toString();
}

void EnlaceDatos::filaCambiada() {
    Common::Manejar([this] { mostrar(); });
}

// Only a field whose value changed is shown again, so a field being typed in keeps what was typed
// while another field of the row is written.
void EnlaceDatos::valoresCambiados() {
    if (escribiendo_) return;
    Common::Manejar([this] {
        if (textoDe(valorActual()) != mostrado_) mostrar();
    });
}

EnlaceDatos* enlazar(ControlDeTexto* caja, store::Adodc* datos, const QString& campo,
                     const QString& formato) {
    return empezar(new EnlaceCaja(caja, datos, campo, formato));
}

EnlaceDatos* enlazar(QCheckBox* casilla, store::Adodc* datos, const QString& campo) {
    return empezar(new EnlaceCasilla(casilla, datos, campo));
}

EnlaceDatos* enlazar(ComboDatos* combo, store::Adodc* datos, const QString& campo) {
    return empezar(new EnlaceCombo(combo, datos, campo));
}

EnlaceDatos* enlazar(QLabel* etiqueta, store::Adodc* datos, const QString& campo, const QString& formato) {
    return empezar(new EnlaceEtiqueta(etiqueta, datos, campo, formato));
}

} // namespace shell
