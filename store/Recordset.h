#pragma once

#include "store/Conexion.h"

#include <QMetaType>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <optional>

namespace store {

enum TipoCursor { adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum TipoBloqueo {
    adLockReadOnly = 1,
    adLockPessimistic = 2,
    adLockOptimistic = 3,
    adLockBatchOptimistic = 4
};
enum ModoEdicion { adEditNone = 0, adEditInProgress = 1, adEditAdd = 2 };

class Recordset;

// One field of the current row: what `rs.Fields("Nombre").Value` reads and writes.
class Campo {
public:
    Campo(Recordset* rs, int indice)
        : rs_(rs)
        , indice_(indice) {}

    QString Name() const;
    QMetaType::Type Type() const;
    // Null comes back as an invalid QVariant. Throws Fallo when there is no current row.
    QVariant Value() const;
    // Converted to the column's type: a date column takes "22/11/2026", a numeric one "1,500.00";
    // empty text to either is Null. Throws Fallo when the value does not fit the column.
    void setValue(const QVariant& valor);
    Campo& operator=(const QVariant& valor) {
        setValue(valor);
        return *this;
    }
    QVariant OriginalValue() const;

private:
    Recordset* rs_;
    int indice_;
};

// A client-side static cursor over the whole result of a statement, with the ADO surface the
// screens use. It is updatable when its source reads one table (with or without an alias) and
// includes the table's key: AddNew/field assignment/Update then write through bound parameters, and
// an Update finds its row by the key and the original values of the fields it changes.
class Recordset : public QObject {
    Q_OBJECT
public:
    explicit Recordset(QObject* parent = nullptr);
    ~Recordset() override;

    void Open(const QString& fuente, const Conexion& conexion, TipoCursor cursor = adOpenStatic,
              TipoBloqueo bloqueo = adLockOptimistic);
    // Runs the same source again on the active connection.
    void Requery();
    void Close();
    int State() const;
    QString Source() const { return fuente_; }
    TipoBloqueo LockType() const { return bloqueo_; }

    // Writes of the current row go through this connection (so, inside its transaction).
    Conexion ActiveConnection() const { return conexion_; }
    void setActiveConnection(const Conexion& conexion);

    bool Eof() const;
    bool Bof() const;
    int RecordCount() const;
    // 1-based position of the current row; 0 when there is none.
    int AbsolutePosition() const;
    void setAbsolutePosition(int posicion);
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    // Looks forward from the current row (after skipping `saltar` rows) for the first row that meets a
    // criterion such as "BancoID = 5"; none leaves the recordset at its end.
    void Find(const QString& criterio, int saltar = 0);

    int FieldCount() const;
    Campo Fields(int indice);
    Campo Fields(const QString& nombre);
    int indiceCampo(const QString& nombre) const; // -1 when absent
    QStringList nombresCampos() const { return nombres_; }
    bool actualizable() const { return tabla_.has_value(); }

    int EditMode() const { return modo_; }
    void AddNew();
    void Update();
    void CancelUpdate();
    void Delete();
    // Reads the current row again from the database, the key a new row was given included.
    void Resync();

Q_SIGNALS:
    // The current row is another one, or the rows were read again.
    void filaCambiada();
    // A value of the current row changed (assigned, written or read again).
    void valoresCambiados();

private:
    friend class Campo;

    struct TablaBase {
        QString tabla;
        QString clave;             // key column
        int indiceClave = -1;      // the key's field
        QVector<QString> columnas; // base column of each field; empty for a computed one
        QStringList reales;        // the REAL columns among them, read exactly
    };

    void exigirAbierto() const;
    void exigirFilaActual() const;
    int indiceExigido(const QString& nombre) const;
    void leer(const QString& fuente);
    void moverA(int posicion);
    void terminarEdicionAntesDeMover();
    QVariant valor(int campo) const;
    QVariant valorOriginal(int campo) const;
    void asignar(int campo, const QVariant& valor);
    void exigirActualizable(const char* operacion) const;
    void insertarFila();
    void actualizarFila();
    QSqlDatabase baseEscritura() const;

    QString fuente_;
    Conexion conexion_;
    TipoBloqueo bloqueo_ = adLockOptimistic;
    bool abierto_ = false;
    QStringList nombres_;
    QVector<QMetaType::Type> tipos_;
    QVector<QVector<QVariant>> filas_;
    int pos_ = 0;
    std::optional<TablaBase> tabla_;
    ModoEdicion modo_ = adEditNone;
    QVector<QVariant> original_;
    QVector<bool> asignados_;
    int posAntesDeAgregar_ = 0;
};

} // namespace store
