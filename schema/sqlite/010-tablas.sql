-- Tables of the store. Keys are generated (AUTOINCREMENT, so a deleted row's key is never handed to a
-- new row that would inherit what still names the old one). Text compares without case, as the
-- program expects of '='; dates are DATE held as yyyy-mm-dd (the store writes them so) and a check
-- refuses anything else, 30 February included ('+0 days' makes date() normalise it); amounts are REAL; flags are BOOLEAN (0/1); quantities are whole numbers.
-- Detail tables carry a key of their own that no statement names: the same article may stand twice
-- on one document.

CREATE TABLE Banco (
    BancoID     INTEGER PRIMARY KEY AUTOINCREMENT,
    Nombre      TEXT COLLATE NOCASE,
    Direccion   TEXT COLLATE NOCASE
);

CREATE TABLE Proveedor (
    ProveedorID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nombre      TEXT COLLATE NOCASE,
    NIT         TEXT COLLATE NOCASE,
    Direccion   TEXT COLLATE NOCASE,
    Telefonos   TEXT COLLATE NOCASE,
    Fax         TEXT COLLATE NOCASE,
    Contacto    TEXT COLLATE NOCASE
);

CREATE TABLE Articulo (
    ArticuloID        INTEGER PRIMARY KEY AUTOINCREMENT,
    Nombre            TEXT COLLATE NOCASE,
    Modelo            TEXT COLLATE NOCASE,
    Color             TEXT COLLATE NOCASE,
    Costo             REAL DEFAULT 0,
    ContadoPorcentaje REAL DEFAULT 0,
    ContadoValor      REAL DEFAULT 0,
    CreditoPorcentaje REAL DEFAULT 0,
    CreditoValor      REAL DEFAULT 0,
    Activo            BOOLEAN DEFAULT 1
);

CREATE TABLE Clasificacion (
    ClasificacionID INTEGER PRIMARY KEY AUTOINCREMENT,
    Descripcion     TEXT COLLATE NOCASE
);

CREATE TABLE EstadoCivil (
    EstadoCivilID INTEGER PRIMARY KEY AUTOINCREMENT,
    Descripcion   TEXT COLLATE NOCASE
);

CREATE TABLE Cliente (
    ClienteID       INTEGER PRIMARY KEY AUTOINCREMENT,
    Nombres         TEXT COLLATE NOCASE,
    Apellidos       TEXT COLLATE NOCASE,
    FechaNacimiento DATE CHECK (FechaNacimiento IS date(FechaNacimiento, '+0 days')),
    NIT             TEXT COLLATE NOCASE,
    CedulaRegistro  TEXT COLLATE NOCASE,
    CedulaNumero    TEXT COLLATE NOCASE,
    CedulaExtendida TEXT COLLATE NOCASE,
    CodigoLetra     TEXT COLLATE NOCASE,
    CodigoNumero    INTEGER,
    Limite          REAL DEFAULT 0,
    Activo          BOOLEAN DEFAULT 1
);

CREATE TABLE ClienteHistorial (
    ClienteHistorialID INTEGER PRIMARY KEY AUTOINCREMENT,
    ClienteID          INTEGER NOT NULL,
    Fecha              DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    Descripcion        TEXT COLLATE NOCASE,
    Valor              REAL DEFAULT 0,
    ClasificacionID    INTEGER
);

CREATE TABLE Fiador (
    FiadorID         INTEGER PRIMARY KEY AUTOINCREMENT,
    Nombres          TEXT COLLATE NOCASE,
    Apellidos        TEXT COLLATE NOCASE,
    FechaNacimiento  DATE CHECK (FechaNacimiento IS date(FechaNacimiento, '+0 days')),
    CedulaRegistro   TEXT COLLATE NOCASE,
    CedulaNumero     TEXT COLLATE NOCASE,
    CedulaExtendida  TEXT COLLATE NOCASE,
    EstadoCivilID    INTEGER,
    Direccion        TEXT COLLATE NOCASE,
    Telefonos        TEXT COLLATE NOCASE,
    CasaPropia       BOOLEAN DEFAULT 0,
    CasaAlquilada    BOOLEAN DEFAULT 0,
    CasaTiempo       INTEGER DEFAULT 0,
    TrabajoNombre    TEXT COLLATE NOCASE,
    TrabajoDireccion TEXT COLLATE NOCASE,
    TrabajoTelefonos TEXT COLLATE NOCASE,
    TrabajoFax       TEXT COLLATE NOCASE,
    TrabajoPuesto    TEXT COLLATE NOCASE,
    TrabajoJefe      TEXT COLLATE NOCASE,
    TrabajoSueldo    REAL DEFAULT 0,
    TrabajoTiempo    INTEGER DEFAULT 0,
    OtrosIngresos    TEXT COLLATE NOCASE,
    Activo           BOOLEAN DEFAULT 1
);

-- Estado: 0 pending, 1 approved, 2 paid off, 3 rejected. ClienteID and FiadorID are 0 while none is
-- chosen, so they are plain columns, not foreign keys; deleting a named client or guarantor is refused
-- by the guards of 030-integridad.sql.
CREATE TABLE Solicitud (
    SolicitudID         INTEGER PRIMARY KEY AUTOINCREMENT,
    NumeroSolicitud     INTEGER,
    Fecha               DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    ClienteID           INTEGER DEFAULT 0,
    FiadorID            INTEGER DEFAULT 0,
    FiadorParentesco    TEXT COLLATE NOCASE,
    EstadoCivilID       INTEGER,
    CasaDireccion       TEXT COLLATE NOCASE,
    CasaZona            TEXT COLLATE NOCASE,
    CasaEstado          TEXT COLLATE NOCASE,
    CasaCodigoPostal    TEXT COLLATE NOCASE,
    CasaTelefonos       TEXT COLLATE NOCASE,
    CasaPropia          BOOLEAN DEFAULT 0,
    CasaAlquilada       BOOLEAN DEFAULT 0,
    CasaTiempo          INTEGER DEFAULT 0,
    Celular             TEXT COLLATE NOCASE,
    Email               TEXT COLLATE NOCASE,
    TrabajoNombre       TEXT COLLATE NOCASE,
    TrabajoDireccion    TEXT COLLATE NOCASE,
    TrabajoZona         TEXT COLLATE NOCASE,
    TrabajoEstado       TEXT COLLATE NOCASE,
    TrabajoCodigoPostal TEXT COLLATE NOCASE,
    TrabajoTelefonos    TEXT COLLATE NOCASE,
    TrabajoFax          TEXT COLLATE NOCASE,
    TrabajoPuesto       TEXT COLLATE NOCASE,
    TrabajoSueldo       REAL DEFAULT 0,
    TrabajoJefe         TEXT COLLATE NOCASE,
    TrabajoTiempo       INTEGER DEFAULT 0,
    OtrosIngresos       TEXT COLLATE NOCASE,
    Descuento           REAL DEFAULT 0,
    Enganche            REAL DEFAULT 0,
    PrimerPago          REAL DEFAULT 0,
    MesesCredito        INTEGER DEFAULT 0,
    DiaPago             INTEGER,
    Estado              INTEGER DEFAULT 0,
    Observaciones       TEXT COLLATE NOCASE,
    FechaAprobacion     DATE CHECK (FechaAprobacion IS date(FechaAprobacion, '+0 days')),
    Mora                REAL DEFAULT 0
);

-- Precio is the amount of the whole line, not the unit price.
CREATE TABLE SolicitudDetalle (
    SolicitudDetalleID INTEGER PRIMARY KEY AUTOINCREMENT,
    SolicitudID        INTEGER NOT NULL,
    ArticuloID         INTEGER NOT NULL,
    Cantidad           INTEGER DEFAULT 0,
    Precio             REAL DEFAULT 0
);

-- Tipo: null for an ordinary concept; 1 enganche, 2 first payment, 3 monthly instalment, 4 mora.
CREATE TABLE Concepto (
    ConceptoID  INTEGER PRIMARY KEY AUTOINCREMENT,
    Descripcion TEXT COLLATE NOCASE,
    Tipo        INTEGER
);

-- A receipt is for an application, a registered client or a plain name; 0 stands for none.
CREATE TABLE Recibo (
    ReciboID     INTEGER PRIMARY KEY AUTOINCREMENT,
    NumeroRecibo INTEGER,
    Fecha        DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    SolicitudID  INTEGER DEFAULT 0,
    ClienteID    INTEGER DEFAULT 0,
    Nombre       TEXT COLLATE NOCASE,
    Concepto     TEXT COLLATE NOCASE,
    BancoID      INTEGER DEFAULT 0,
    ChequeNumero TEXT COLLATE NOCASE,
    ChequeValor  REAL DEFAULT 0,
    Efectivo     REAL DEFAULT 0,
    Vuelto       REAL DEFAULT 0
);

-- A line is a concept (ArticuloID 0, Cantidad 1) or an article (ConceptoID 0); Valor is the unit value.
CREATE TABLE ReciboDetalle (
    ReciboDetalleID INTEGER PRIMARY KEY AUTOINCREMENT,
    ReciboID        INTEGER NOT NULL,
    ConceptoID      INTEGER DEFAULT 0,
    ArticuloID      INTEGER DEFAULT 0,
    Cantidad        INTEGER DEFAULT 1,
    Valor           REAL DEFAULT 0
);

CREATE TABLE Factura (
    FacturaID     INTEGER PRIMARY KEY AUTOINCREMENT,
    NumeroFactura INTEGER,
    Fecha         DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    SolicitudID   INTEGER DEFAULT 0,
    ClienteID     INTEGER DEFAULT 0,
    Nombre        TEXT COLLATE NOCASE,
    NIT           TEXT COLLATE NOCASE,
    Descuento     REAL DEFAULT 0,
    Observaciones TEXT COLLATE NOCASE,
    BancoID       INTEGER DEFAULT 0,
    ChequeNumero  TEXT COLLATE NOCASE,
    ChequeValor   REAL DEFAULT 0,
    Efectivo      REAL DEFAULT 0,
    Vuelto        REAL DEFAULT 0,
    Estado        INTEGER DEFAULT 0
);

-- Each insert names ArticuloID or ConceptoID; the other must read 0, never Null. Precio is the unit price.
CREATE TABLE FacturaDetalle (
    FacturaDetalleID INTEGER PRIMARY KEY AUTOINCREMENT,
    FacturaID        INTEGER NOT NULL,
    ArticuloID       INTEGER DEFAULT 0,
    ConceptoID       INTEGER DEFAULT 0,
    Cantidad         INTEGER DEFAULT 1,
    EsCredito        INTEGER DEFAULT 0,
    Precio           REAL DEFAULT 0
);

CREATE TABLE NotaIngreso (
    IngresoID      INTEGER PRIMARY KEY AUTOINCREMENT,
    NumeroIngreso  INTEGER,
    ProveedorID    INTEGER DEFAULT 0,
    Fecha          DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    Descripcion    TEXT COLLATE NOCASE
);

CREATE TABLE NotaIngresoDetalle (
    NotaIngresoDetalleID INTEGER PRIMARY KEY AUTOINCREMENT,
    IngresoID            INTEGER NOT NULL,
    ArticuloID           INTEGER NOT NULL,
    Cantidad             INTEGER DEFAULT 0,
    Costo                REAL DEFAULT 0
);

-- Exactly one origin is written; the other two stay 0, which the delivery screen reads as none.
CREATE TABLE NotaEnvio (
    NotaID        INTEGER PRIMARY KEY AUTOINCREMENT,
    NumeroNota    INTEGER,
    Fecha         DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    SolicitudID   INTEGER DEFAULT 0,
    FacturaID     INTEGER DEFAULT 0,
    ReciboID      INTEGER DEFAULT 0,
    Direccion     TEXT COLLATE NOCASE,
    Observaciones TEXT COLLATE NOCASE
);

CREATE TABLE NotaEnvioDetalle (
    NotaEnvioDetalleID INTEGER PRIMARY KEY AUTOINCREMENT,
    NotaID             INTEGER NOT NULL,
    ArticuloID         INTEGER NOT NULL,
    Cantidad           INTEGER DEFAULT 0
);

CREATE TABLE Documento (
    DocumentoID     INTEGER PRIMARY KEY AUTOINCREMENT,
    NumeroDocumento INTEGER,
    ProveedorID     INTEGER DEFAULT 0,
    Fecha           DATE CHECK (Fecha IS date(Fecha, '+0 days')),
    Descripcion     TEXT COLLATE NOCASE
);

-- The one relation the store must keep: each line pays a goods-in note that exists. The clause below
-- declares it (and lets PRAGMA foreign_key_check find a broken one), but SQLite acts on it only where
-- the connection turned foreign keys on, which DSNBrenal's FKSupport decides; the guards of
-- 030-integridad.sql keep it on every connection, and fire before the clause could, so both settings
-- refuse the same statements with the same message.
CREATE TABLE DocumentoDetalle (
    DocumentoDetalleID INTEGER PRIMARY KEY AUTOINCREMENT,
    DocumentoID        INTEGER NOT NULL,
    IngresoID          INTEGER NOT NULL REFERENCES NotaIngreso (IngresoID),
    Valor              REAL DEFAULT 0
);

-- One row per change of this schema; cuentacorriente-db status reads the highest.
CREATE TABLE VersionEsquema (
    Version     INTEGER PRIMARY KEY,
    Descripcion TEXT NOT NULL,
    Aplicada    TEXT NOT NULL DEFAULT (datetime('now'))
);
