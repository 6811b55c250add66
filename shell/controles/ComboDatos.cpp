#include "shell/controles/ComboDatos.h"

#include "runtime/Conversion.h"
#include "shell/common/Common.h"
#include "store/Adodc.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

namespace shell {

namespace {

// Sets a flag for as long as it lives, so a failure while reading leaves it clear.
class Marca {
public:
    explicit Marca(bool& bandera)
        : bandera_(bandera) {
        bandera_ = true;
    }
    ~Marca() { bandera_ = false; }
    Marca(const Marca&) = delete;
    Marca& operator=(const Marca&) = delete;

private:
    bool& bandera_;
};

} // namespace

ComboDatos::ComboDatos(QWidget* parent)
    : QComboBox(parent) {
    setEditable(false);
    setCurrentIndex(-1);
    connect(this, &QComboBox::currentIndexChanged, this, [this] { cambioDeEleccion(); });
    connect(this, &QComboBox::activated, this, [this] { correr(elegir_); });
}

void ComboDatos::setRowSource(store::Adodc* datos) {
    setRowSource(datos ? datos->Recordset() : nullptr);
}

void ComboDatos::setRowSource(store::Recordset* filas) {
    if (filas_) disconnect(filas_, nullptr, this, nullptr);
    filas_ = filas;
    if (filas_) connect(filas_, &store::Recordset::filaCambiada, this, &ComboDatos::filasCambiadas);
    ReFill();
}

void ComboDatos::setListField(const QString& campo) {
    campoLista_ = campo;
    ReFill();
}

void ComboDatos::setBoundColumn(const QString& campo) {
    campoEnlazado_ = campo;
    ReFill();
}

void ComboDatos::alCambiar(Manejador manejador) {
    cambiar_ << std::move(manejador);
}

void ComboDatos::alElegir(Manejador manejador) {
    elegir_ << std::move(manejador);
}

void ComboDatos::correr(const QVector<Manejador>& manejadores) {
    if (manejadores.isEmpty()) return;
    const QVector<Manejador> copia = manejadores;
    QPointer<ComboDatos> vivo(this);
    Common::Manejar([&] {
        for (const Manejador& m : copia) {
            if (!vivo) return;
            m();
        }
    });
}

// The row source moved or was read again. Reading the list moves it too: that is ignored.
void ComboDatos::filasCambiadas() {
    if (leyendo_) return;
    Common::Manejar([this] { ReFill(); });
}

void ComboDatos::ReFill() {
    {
        Marca marca(leyendo_);
        clear();
        enlazados_.clear();
        if (filas_ && filas_->State() == store::adStateOpen && !campoLista_.isEmpty()) {
            const QString enlazado = campoEnlazado_.isEmpty() ? campoLista_ : campoEnlazado_;
            const int posicion = filas_->AbsolutePosition();
            if (filas_->RecordCount() > 0) {
                filas_->MoveFirst();
                while (!filas_->Eof()) {
                    addItem(runtime::TextoDe(filas_->Fields(campoLista_).Value()));
                    enlazados_ << filas_->Fields(enlazado).Value();
                    filas_->MoveNext();
                }
                if (posicion > 0) filas_->setAbsolutePosition(posicion);
            }
        }
        setCurrentIndex(indiceDe(pedido_));
    }
    cambioDeEleccion();
}

int ComboDatos::indiceDe(const QString& valor) const {
    if (valor.isEmpty()) return -1;
    for (int i = 0; i < enlazados_.size(); ++i)
        if (runtime::TextoDe(enlazados_[i]) == valor) return i;
    // A key given as "5.0" or " 5" is still the row of key 5.
    if (runtime::EsNumero(valor))
        for (int i = 0; i < enlazados_.size(); ++i) {
            const QString texto = runtime::TextoDe(enlazados_[i]);
            if (runtime::EsNumero(texto) && runtime::Val(texto) == runtime::Val(valor.trimmed())) return i;
        }
    return -1;
}

QString ComboDatos::BoundText() const {
    const int i = currentIndex();
    return i >= 0 && i < enlazados_.size() ? runtime::TextoDe(enlazados_[i]) : QString();
}

void ComboDatos::setBoundText(const QString& valor) {
    pedido_ = valor;
    setCurrentIndex(indiceDe(valor));
}

void ComboDatos::cambioDeEleccion() {
    if (leyendo_) return;
    const QString ahora = BoundText();
    if (currentIndex() >= 0) pedido_ = ahora;
    if (ahora == ultimoEnlazado_) return;
    ultimoEnlazado_ = ahora;
    correr(cambiar_);
}

} // namespace shell
