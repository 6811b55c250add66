// The client screen as the clerk uses it, against the database: the code from the surname, the
// identity card's place, the history lines through their dialog, saving inside the shared
// transaction, the deletion by option, and the opening for one client that the credit application
// makes.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "Gestos.h"
#include "ProgramaDePrueba.h"
#include "credit/frmCliente.h"
#include "credit/frmHistorial.h"
#include "runtime/Fechas.h"

#include <QLabel>
#include <QTableView>
#include <QtTest>

using namespace credito;

class TstFrmCliente : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void codigoPorLaLetraDelApellido();
    void nombresEnMayusculas_data();
    void nombresEnMayusculas();
    void codigoSubeAlSalirDelApellidoEnModificar();
    void cedulaExtendida_data();
    void cedulaExtendida();
    void lineaPorElDialogo_data();
    void lineaPorElDialogo();
    void editarLineaMuestraSuClasificacion();
    void teclasDelHistorialSoloEditando();
    void lineaSinFechaNoSeGuarda();
    void fechaDeNacimientoSoloVaDelSelectorALaFila();
    void desactivarDejaAlClienteEnPantalla();
    void eliminarDejaElHistorial();
    void eliminarQueFallaMuestraElTexto_data();
    void eliminarQueFallaMuestraElTexto();
    void abiertoPorClienteAbrir_data();
    void abiertoPorClienteAbrir();
    void apostrofeEnElHistorialTerminaElPrograma();

private:
    frmCliente& pantalla();
    void pulsar(const QString& caption);
    frmCliente& buscar(const QString& apellidos);
    // Queues the history dialog's action: these values typed (the value field left with Tab, so a
    // value of 0 or less shows its message, which the test queues after this) and the dialog closed
    // with `cierre` ("&Aceptar", "&Cancelar" or "cmdClose").
    void llenarDialogo(const QString& fecha, const QString& descripcion, const QString& valor,
                       const QString& clasificacion, const QString& cierre = QStringLiteral("&Aceptar"));
    // A key on the history grid.
    void tecla(Qt::Key k);
    QColor tituloMientras_; // the screen's title strip while the dialog stood
    QStringList filas();
    QString db(const QString& consulta) { return base_->valor(consulta); }
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};

void TstFrmCliente::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    // Classifications from the schema's rows: 1 Excelente, 2 Bueno, 3 Regular, 4 Malo.
    base_->sqlite(
        "INSERT INTO Cliente (ClienteID, Nombres, Apellidos, FechaNacimiento, NIT, CedulaRegistro, "
        "CedulaNumero, CedulaExtendida, CodigoLetra, CodigoNumero, Limite) VALUES "
        "(1, 'ANA LUCÍA', 'GONZÁLEZ', '1980-05-17', '1234567-8', 'A-1', '45678', 'Capital', 'G', 1, 5000);"
        "INSERT INTO ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, ClasificacionID) VALUES "
        "(1, '2025-06-01', 'Refrigeradora', 3200, 1), (1, NULL, 'Referencia sin fecha', 0, 2);");
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

void TstFrmCliente::cleanup() {
    runtime::LiberarReloj();
    entorno_.reset();
    programa_.reset();
    base_.reset();
}

// "Catalogos > Clientes", as the clerk opens it; the open screen after that.
frmCliente& TstFrmCliente::pantalla() {
    auto& p = Common::Pantalla<frmCliente>();
    return p.isVisible() ? p : programa_->abrir<frmCliente>(QStringLiteral("Clientes"));
}

void TstFrmCliente::pulsar(const QString& caption) {
    pulsarBoton(pantalla().cmdBoton, caption);
}

// "Buscar": the whole list, and a double click on the row of the surname.
frmCliente& TstFrmCliente::buscar(const QString& apellidos) {
    auto& p = pantalla();
    elegirEnBusqueda(*entorno_, apellidos);
    pulsar("Buscar");
    activar(p); // back from the search, the screen takes the keyboard again
    entorno_->modalesMostradas.clear();
    entorno_->titulosModales.clear();
    return p;
}

void TstFrmCliente::llenarDialogo(const QString& fecha, const QString& descripcion, const QString& valor,
                                  const QString& clasificacion, const QString& cierre) {
    entorno_->alMostrarModal([=, this](shell::Formulario& d) {
        auto& h = static_cast<frmHistorial&>(d);
        activar(h);
        tituloMientras_ = pantalla().lblTitulo->grab().toImage().pixelColor(2, 2);
        escribir(h.txtHFecha, fecha);
        escribir(h.txtHDescripcion, descripcion);
        escribir(h.txtHValor, valor);
        if (!clasificacion.isEmpty()) {
            h.dcClasificacion->setFocus();
            QTest::keyClicks(h.dcClasificacion, clasificacion);
            QCOMPARE(h.dcClasificacion->Text(), clasificacion);
        }
        if (cierre == QLatin1String("cmdClose"))
            QTest::mouseClick(h.cmdClose, Qt::LeftButton);
        else
            for (QPushButton* b : h.cmdBoton)
                if (b->text() == cierre) QTest::mouseClick(b, Qt::LeftButton);
    });
}

void TstFrmCliente::tecla(Qt::Key k) {
    auto& p = pantalla();
    activar(p);
    p.fgDetalle->setFocus();
    QTest::keyClick(p.fgDetalle, k);
    activar(p); // back from a dialog
}

// The grid's data rows, cells joined by "|".
QStringList TstFrmCliente::filas() {
    return filasDe(*pantalla().fgDetalle);
}

// Each letter counts from 1 by itself: two surnames with G after the G1 on file, then one with H.
void TstFrmCliente::codigoPorLaLetraDelApellido() {
    auto& p = pantalla();
    QStringList codigos;
    for (const QString& apellido :
         {QStringLiteral("garcía"), QStringLiteral("guzmán"), QStringLiteral("hernández")}) {
        pulsar("Agregar");
        QCOMPARE(QApplication::focusWidget(), p.txtNombres);
        teclear(p.txtNombres, QStringLiteral("luis"));
        QTest::keyClick(p.txtNombres, Qt::Key_Return); // moves on to the surname
        QCOMPARE(QApplication::focusWidget(), p.txtApellidos);
        teclear(p.txtApellidos, apellido);
        QTest::keyClick(p.txtApellidos, Qt::Key_Return);
        codigos << p.txtCodigoLetra->text() + p.txtCodigoNumero->text();
        pulsar("Guardar");
        QCOMPARE(Common::TransaccionActiva, 0L);
    }
    QCOMPARE(codigos, (QStringList{"G2", "G3", "H1"}));
    QCOMPARE(db("SELECT group_concat(CodigoLetra || CodigoNumero, ' ') FROM (SELECT * FROM Cliente ORDER "
                "BY ClienteID)"),
             QStringLiteral("G1 G2 G3 H1"));
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstFrmCliente::nombresEnMayusculas_data() {
    QTest::addColumn<QString>("nombres");
    QTest::addColumn<QString>("apellidos");
    QTest::addColumn<QString>("guardados"); // Nombres/Apellidos/code as stored
    QTest::newRow("minusculas") << "maria"
                                << "gomez"
                                << "MARIA/GOMEZ/G2";
    QTest::newRow("tildes y enie") << "josé ñando"
                                   << "muñoz peña"
                                   << "JOSÉ ÑANDO/MUÑOZ PEÑA/M1";
    QTest::newRow("apellido que empieza con tilde") << "íñigo"
                                                    << "álvarez"
                                                    << "ÍÑIGO/ÁLVAREZ/Á1";
}

void TstFrmCliente::nombresEnMayusculas() {
    QFETCH(QString, nombres);
    QFETCH(QString, apellidos);
    QFETCH(QString, guardados);
    auto& p = pantalla();
    pulsar("Agregar");
    teclear(p.txtNombres, nombres);
    escribir(p.txtApellidos, apellidos);
    QCOMPARE(p.txtNombres->text() + u'/' + p.txtApellidos->text() + u'/' + p.txtCodigoLetra->text() +
                 p.txtCodigoNumero->text(),
             guardados);
    pulsar("Guardar");
    QCOMPARE(db("SELECT Nombres || '/' || Apellidos || '/' || CodigoLetra || CodigoNumero FROM Cliente "
                "WHERE ClienteID > 1"),
             guardados);
}

// Only passing through the surname of a client under "Modificar" gives it the next number of its
// letter, itself included.
void TstFrmCliente::codigoSubeAlSalirDelApellidoEnModificar() {
    auto& p = buscar("GONZÁLEZ");
    QCOMPARE(p.txtCodigoNumero->text(), QStringLiteral("1"));
    pulsar("Modificar");
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Modificar registro actual"));
    QVERIFY(Common::TransaccionActiva > 0);
    salirCon(p.txtApellidos);
    QCOMPARE(p.txtApellidos->text(), QStringLiteral("GONZÁLEZ"));
    QCOMPARE(p.txtCodigoNumero->text(), QStringLiteral("2"));
    pulsar("Guardar");
    QCOMPARE(db("SELECT CodigoLetra || CodigoNumero FROM Cliente WHERE ClienteID = 1"), QStringLiteral("G2"));
}

void TstFrmCliente::cedulaExtendida_data() {
    QTest::addColumn<QString>("registro");
    QTest::addColumn<QString>("extendida");
    QTest::newRow("a-1 en minusculas") << "a-1"
                                       << "Capital";
    QTest::newRow("A-1") << "A-1"
                         << "Capital";
    QTest::newRow("otro registro vacia el lugar") << "B-2"
                                                  << "";
    QTest::newRow("A-10 no es A-1") << "A-10"
                                    << "";
}

// Whatever the place held before, the registry decides it on leaving.
void TstFrmCliente::cedulaExtendida() {
    QFETCH(QString, registro);
    QFETCH(QString, extendida);
    auto& p = buscar("GONZÁLEZ");
    pulsar("Modificar");
    escribir(p.txtCedulaExtendida, QStringLiteral("Quetzaltenango"));
    escribir(p.txtCedulaRegistro, registro);
    QCOMPARE(p.txtCedulaExtendida->text(), extendida);
    pulsar("Guardar");
    QCOMPARE(
        db("SELECT CedulaRegistro || '/' || ifnull(CedulaExtendida, '') FROM Cliente WHERE ClienteID = 1"),
        registro + u'/' + extendida);
}

void TstFrmCliente::lineaPorElDialogo_data() {
    QTest::addColumn<QString>("fecha");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("cierre");
    QTest::addColumn<bool>("mensaje");  // "No es posible operar el valor indicado."
    QTest::addColumn<QString>("linea"); // the grid's new last row, or "" when none is added
    QTest::newRow("aceptada") << "5/1/2026"
                              << "150"
                              << "&Aceptar" << false << "05/01/2026|Estufa|150.00|Bueno|2";
    QTest::newRow("valor 0: el mensaje no impide aceptar")
        << "05/01/2026"
        << "0"
        << "&Aceptar" << true << "05/01/2026|Estufa|0.00|Bueno|2";
    QTest::newRow("fecha que no es fecha: se descarta callando") << "31/02/2026"
                                                                 << "150"
                                                                 << "&Aceptar" << false << "";
    QTest::newRow("Cancelar") << "5/1/2026"
                              << "150"
                              << "&Cancelar" << false << "";
    QTest::newRow("caja de cerrar") << "5/1/2026"
                                    << "150"
                                    << "cmdClose" << false << "";
}

// Insert opens the dialog with the screen's title dimmed; what comes back as a line is added after
// the client's lines, and a line with no date is no line.
void TstFrmCliente::lineaPorElDialogo() {
    QFETCH(QString, fecha);
    QFETCH(QString, valor);
    QFETCH(QString, cierre);
    QFETCH(bool, mensaje);
    QFETCH(QString, linea);
    auto& p = buscar("GONZÁLEZ");
    const QStringList antes = filas();
    QCOMPARE(antes, (QStringList{"01/06/2025|Refrigeradora|3200.00|Excelente|1",
                                 "|Referencia sin fecha|0.00|Bueno|2"}));
    pulsar("Modificar");
    llenarDialogo(fecha, QStringLiteral("Estufa"), valor, QStringLiteral("Bueno"), cierre);
    QString texto;
    if (mensaje) responder(*entorno_, QStringLiteral("cmdClose"), &texto);
    tecla(Qt::Key_Insert);
    QCOMPARE(entorno_->modalesSinAccion, 0);
    const QStringList mostradas =
        mensaje ? QStringList{"frmHistorial", "frmMensaje"} : QStringList{"frmHistorial"};
    QCOMPARE(entorno_->modalesMostradas, mostradas);
    QCOMPARE(texto, mensaje ? QStringLiteral("No es posible operar el valor indicado.") : QString());
    QCOMPARE(tituloMientras_, QColor(128, 128, 128));
    QCOMPARE(p.lblTitulo->grab().toImage().pixelColor(2, 2), QColor(0, 0, 128));
    QCOMPARE(filas(), linea.isEmpty() ? antes : antes + QStringList{linea});
}

// Enter edits the current line: the dialog opens on it with its classification chosen, the title not
// dimmed, and what is accepted replaces the cells.
void TstFrmCliente::editarLineaMuestraSuClasificacion() {
    auto& p = buscar("GONZÁLEZ");
    pulsar("Modificar");
    QString clasificacionAlAbrir, fechaAlAbrir;
    entorno_->alMostrarModal([&](shell::Formulario& d) {
        auto& h = static_cast<frmHistorial&>(d);
        activar(h);
        tituloMientras_ = p.lblTitulo->grab().toImage().pixelColor(2, 2);
        clasificacionAlAbrir = h.dcClasificacion->Text();
        fechaAlAbrir = h.txtHFecha->text();
        escribir(h.txtHValor, QStringLiteral("2999.5"));
        h.dcClasificacion->setFocus();
        QTest::keyClicks(h.dcClasificacion, QStringLiteral("Regular"));
        QTest::mouseClick(h.cmdBoton[0], Qt::LeftButton);
    });
    p.fgDetalle->setFocus();
    p.fgDetalle->setRow(1);
    QTest::keyClick(p.fgDetalle, Qt::Key_Return);
    QCOMPARE(fechaAlAbrir, QStringLiteral("01/06/2025"));
    QCOMPARE(clasificacionAlAbrir, QStringLiteral("Excelente"));
    QCOMPARE(tituloMientras_, QColor(0, 0, 128));
    QCOMPARE(filas().first(), QStringLiteral("01/06/2025|Refrigeradora|2999.50|Regular|3"));
    pulsar("Guardar");
    QCOMPARE(db("SELECT printf('%.2f', Valor) || '/' || ClasificacionID FROM ClienteHistorial WHERE "
                "Descripcion = 'Refrigeradora'"),
             QStringLiteral("2999.50/3"));
}

// While browsing, Insert, Enter and Delete on the grid open nothing and change nothing (an unexpected
// dialog would fail the test); in editing, Delete removes the line, and the last one leaves a blank row.
void TstFrmCliente::teclasDelHistorialSoloEditando() {
    auto& p = buscar("GONZÁLEZ");
    const QStringList antes = filas();
    for (const Qt::Key k : {Qt::Key_Insert, Qt::Key_Return, Qt::Key_Delete}) {
        QTest::keyClick(p.fgDetalle, k);
        QTest::mouseDClick(p.fgDetalle->viewport(), Qt::LeftButton, {},
                           p.fgDetalle->visualItemRect(p.fgDetalle->item(0, 1)).center());
    }
    QVERIFY(entorno_->modalesMostradas.isEmpty());
    QCOMPARE(filas(), antes);
    pulsar("Modificar");
    p.fgDetalle->setRow(1);
    tecla(Qt::Key_Delete);
    QCOMPARE(filas(), QStringList{"|Referencia sin fecha|0.00|Bueno|2"});
    tecla(Qt::Key_Delete);
    QCOMPARE(filas(), QStringList{"||||"});
    pulsar("Guardar");
    QCOMPARE(db("SELECT count(*) FROM ClienteHistorial"), QStringLiteral("0"));
}

// A line with no date (an old row read without one, the grid's blank row) is not stored: "Guardar"
// writes the history again from the lines with a date.
void TstFrmCliente::lineaSinFechaNoSeGuarda() {
    buscar("GONZÁLEZ");
    pulsar("Modificar");
    llenarDialogo(QStringLiteral("22/11/2026"), QStringLiteral("Lavadora"), QStringLiteral("1800"),
                  QStringLiteral("Malo"));
    tecla(Qt::Key_Insert);
    QCOMPARE(filas().size(), 3);
    pulsar("Guardar");
    QCOMPARE(db("SELECT group_concat(Fecha || '/' || Descripcion || '/' || printf('%.2f', Valor) || '/' || "
                "ClasificacionID, ';') FROM (SELECT * FROM ClienteHistorial ORDER BY ClienteHistorialID)"),
             QStringLiteral("2025-06-01/Refrigeradora/3200.00/1;2026-11-22/Lavadora/1800.00/4"));
    QCOMPARE(db("SELECT count(*) FROM ClienteHistorial WHERE Fecha IS NULL"), QStringLiteral("0"));

    // A new client: its first line replaces the blank row, and the blank row is never stored.
    auto& p = pantalla();
    p.fgDetalle->setRow(1);
    pulsar("Agregar");
    QCOMPARE(filas().size(), 3); // the lines of the client shown before stay, the undated one too
    for (int i = 0; i < 3; ++i) {
        p.fgDetalle->setRow(1);
        tecla(Qt::Key_Delete);
    }
    QCOMPARE(filas(), QStringList{"||||"});
    llenarDialogo(QStringLiteral("1/2/2026"), QStringLiteral("Televisor"), QStringLiteral("2500"),
                  QStringLiteral("Excelente"));
    tecla(Qt::Key_Insert);
    QCOMPARE(filas(), QStringList{"01/02/2026|Televisor|2500.00|Excelente|1"});
    escribir(p.txtApellidos, QStringLiteral("pérez"));
    pulsar("Guardar");
    QCOMPARE(db("SELECT group_concat(H.Descripcion) FROM ClienteHistorial H JOIN Cliente C USING "
                "(ClienteID) WHERE C.Apellidos = 'PÉREZ'"),
             QStringLiteral("Televisor"));
}

// The picker is never filled from the row: it shows its own date (today), and saving writes that.
void TstFrmCliente::fechaDeNacimientoSoloVaDelSelectorALaFila() {
    runtime::FijarReloj(QDateTime(QDate(2026, 3, 9), QTime(10, 0)));
    auto& p = buscar("GONZÁLEZ");
    QCOMPARE(p.txtFecha->Value(), QDate(2026, 3, 9));
    pulsar("Modificar");
    pulsar("Guardar");
    QCOMPARE(db("SELECT FechaNacimiento FROM Cliente WHERE ClienteID = 1"), QStringLiteral("2026-03-09"));
    // Set in the edit, it is what is stored.
    pulsar("Modificar");
    p.txtFecha->setFocus();
    p.txtFecha->setSelectedSection(QDateTimeEdit::DaySection);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(p.txtFecha, Qt::Key_Up); // the day, up from the 9th
    QCOMPARE(p.txtFecha->Value(), QDate(2026, 3, 17));
    pulsar("Guardar");
    QCOMPARE(db("SELECT FechaNacimiento FROM Cliente WHERE ClienteID = 1"), QStringLiteral("2026-03-17"));
}

void TstFrmCliente::desactivarDejaAlClienteEnPantalla() {
    auto& p = buscar("GONZÁLEZ");
    QStringList opciones;
    entorno_->alMostrarModal([&](shell::Formulario& d) {
        QPushButton* elegido = nullptr;
        for (QPushButton* b : d.findChildren<QPushButton*>())
            if (b->objectName().startsWith(QLatin1String("cmdBoton"))) {
                opciones << b->text();
                if (b->text() == QLatin1String("Desactivar este cliente")) elegido = b;
            }
        QTest::mouseClick(elegido, Qt::LeftButton);
    });
    pulsar("Eliminar");
    QCOMPARE(entorno_->modalesMostradas, QStringList{"frmOpcion"});
    QCOMPARE(entorno_->titulosModales, QStringList{"Clientes"});
    QCOMPARE(opciones, (QStringList{"Desactivar este cliente", "Eliminar el registro"}));
    QCOMPARE(p.txtApellidos->text(), QStringLiteral("GONZÁLEZ"));
    QCOMPARE(db("SELECT Activo FROM Cliente WHERE ClienteID = 1"), QStringLiteral("0"));
    QCOMPARE(db("SELECT count(*) FROM vwBuscaCliente WHERE hidID = 1"), QStringLiteral("0"));
    // Nor is it found any more.
    entorno_->alMostrarModal([&](shell::Formulario& busca) {
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
        QCOMPARE(busca.findChild<QTableView*>(QStringLiteral("dg"))->model()->rowCount(), 0);
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    pulsar("Buscar");
    QCOMPARE(p.txtApellidos->text(), QStringLiteral("GONZÁLEZ")); // a search left empty keeps the client
}

void TstFrmCliente::eliminarDejaElHistorial() {
    auto& p = buscar("GONZÁLEZ");
    entorno_->alMostrarModal([](shell::Formulario& d) {
        for (QPushButton* b : d.findChildren<QPushButton*>())
            if (b->text() == QLatin1String("Eliminar el registro")) QTest::mouseClick(b, Qt::LeftButton);
    });
    pulsar("Eliminar");
    QCOMPARE(db("SELECT count(*) FROM Cliente"), QStringLiteral("0"));
    QCOMPARE(db("SELECT count(*) FROM ClienteHistorial WHERE ClienteID = 1"), QStringLiteral("2"));
    QVERIFY(p.txtApellidos->text().isEmpty());
    QVERIFY(p.txtNombres->text().isEmpty());
}

void TstFrmCliente::eliminarQueFallaMuestraElTexto_data() {
    QTest::addColumn<bool>("conCliente");
    QTest::addColumn<QString>("opcion");
    QTest::addColumn<QString>("texto"); // part of what the message says
    QTest::newRow("sin cliente, desactivar") << false << "Desactivar este cliente"
                                             << "registro actual";
    QTest::newRow("sin cliente, eliminar") << false << "Eliminar el registro"
                                           << "registro actual";
    QTest::newRow("cliente con solicitud") << true << "Eliminar el registro"
                                           << "No puede eliminarse el cliente";
}

// The deletion catches its failure: the driver's text reaches the clerk and the program goes on.
void TstFrmCliente::eliminarQueFallaMuestraElTexto() {
    QFETCH(bool, conCliente);
    QFETCH(QString, opcion);
    QFETCH(QString, texto);
    base_->sqlite("INSERT INTO Solicitud (NumeroSolicitud, ClienteID) VALUES (1, 1);");
    auto& p = conCliente ? buscar("GONZÁLEZ") : pantalla();
    responder(*entorno_, opcion);
    QString mensaje;
    responder(*entorno_, QStringLiteral("cmdClose"), &mensaje);
    pulsar("Eliminar");
    QCOMPARE(entorno_->modalesMostradas, (QStringList{"frmOpcion", "frmMensaje"}));
    QCOMPARE(entorno_->titulosModales.last(), QStringLiteral("Clientes"));
    QVERIFY2(mensaje.contains(texto), qPrintable(mensaje));
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(db("SELECT count(*) || '/' || sum(Activo) FROM Cliente"), QStringLiteral("1/1"));
    QCOMPARE(p.txtApellidos->text(), conCliente ? QStringLiteral("GONZÁLEZ") : QString());
}

void TstFrmCliente::abiertoPorClienteAbrir_data() {
    QTest::addColumn<QString>("boton");
    QTest::addColumn<QString>("nit");       // as stored afterwards
    QTest::addColumn<long>("clienteAbrir"); // afterwards
    QTest::newRow("Guardar confirma y deja ClienteAbrir") << "Guardar"
                                                          << "C/F" << 1L;
    QTest::newRow("Cancelar borra ClienteAbrir y no anula") << "Cancelar"
                                                            << "1234567-8" << 0L;
}

// Opened as the credit application opens it, for one client: straight in "Modificar", and the
// screen goes by itself on "Guardar" (committing) or "Cancelar" (leaving the transaction as it is).
void TstFrmCliente::abiertoPorClienteAbrir() {
    QFETCH(QString, boton);
    QFETCH(QString, nit);
    QFETCH(long, clienteAbrir);
    QString estado, apellidos;
    QStringList historial;
    entorno_->alMostrarModal([&](shell::Formulario& f) {
        auto& c = static_cast<frmCliente&>(f);
        activar(c);
        estado = c.lblEstado->isVisible() ? c.lblEstado->text() : QString();
        apellidos = c.txtApellidos->text();
        historial = filas();
        escribir(c.txtNIT, QStringLiteral("C/F"));
        for (QPushButton* b : c.cmdBoton)
            if (b->text() == boton && b->isVisible()) QTest::mouseClick(b, Qt::LeftButton);
    });
    Common::ClienteAbrir = 1;
    QPointer<frmCliente> cliente(&Common::PantallaModal<frmCliente>());
    cliente->ShowModal();
    QCOMPARE(entorno_->modalesMostradas, QStringList{"frmCliente"});
    QCOMPARE(estado, QStringLiteral("Modificar registro actual"));
    QCOMPARE(apellidos, QStringLiteral("GONZÁLEZ"));
    QCOMPARE(historial.size(), 2);
    QVERIFY(!cliente || cliente->descargado());
    QCOMPARE(Common::ClienteAbrir, clienteAbrir);
    QCOMPARE(db("SELECT NIT FROM Cliente WHERE ClienteID = 1"), nit);
    if (boton == QLatin1String("Guardar")) {
        QCOMPARE(Common::TransaccionActiva, 0L);
    } else {
        QVERIFY(Common::TransaccionActiva > 0); // the caller's to end
        Common::DE().CN.RollbackTrans();
        Common::TransaccionActiva = 0;
    }
    QVERIFY(entorno_->fallos.isEmpty());
}

// The description goes into the insert between quotes, unescaped: an apostrophe ends it, the
// statement is refused before it reaches the database, and nothing catches the failure. The clerk
// sees the program's error box (the failure's number and text) and the program ends; what was saved
// before stays, and what this edit did is rolled back with the end.
void TstFrmCliente::apostrofeEnElHistorialTerminaElPrograma() {
    entorno_->esperaFallos(); // checked below
    auto& p = buscar("GONZÁLEZ");
    pulsar("Modificar");
    escribir(p.txtNIT, QStringLiteral("C/F"));
    llenarDialogo(QStringLiteral("22/11/2026"), QStringLiteral("Estufa d'Ana"), QStringLiteral("900"),
                  QStringLiteral("Bueno"));
    tecla(Qt::Key_Insert);
    QCOMPARE(filas().last(), QStringLiteral("22/11/2026|Estufa d'Ana|900.00|Bueno|2"));
    pulsar("Guardar");
    QCOMPARE(entorno_->fallos.size(), 1);
    const store::Fallo& fallo = entorno_->fallos[0];
    QCOMPARE(fallo.numero(), store::FalloSintaxis);
    qInfo("what the error box says: Error %s -- %s", qPrintable(fallo.numeroHex()),
          qPrintable(fallo.descripcion()));
    QVERIFY(!fallo.descripcion().isEmpty());
    QVERIFY(p.lblEstado->isVisible()); // the handler stopped where it failed
    const QString historialGuardado = QStringLiteral("2025-06-01/Refrigeradora;/Referencia sin fecha");
    const auto historial = [this] {
        return db("SELECT group_concat(ifnull(Fecha, '') || '/' || Descripcion, ';') FROM (SELECT * FROM "
                  "ClienteHistorial ORDER BY ClienteHistorialID)");
    };
    QCOMPARE(historial(), historialGuardado);
    QCOMPARE(db("SELECT NIT FROM Cliente WHERE ClienteID = 1"), QStringLiteral("1234567-8"));
    // The end of the process closes the connection, and the database undoes the open transaction.
    Common::DE().CN.Close();
    QCOMPARE(historial(), historialGuardado);
    QCOMPARE(db("SELECT NIT FROM Cliente WHERE ClienteID = 1"), QStringLiteral("1234567-8"));
}

QTEST_MAIN(TstFrmCliente)
#include "tst_frmCliente.moc"
