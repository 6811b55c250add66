-- A small sample store, loaded by `cuentacorriente-db init --demo` on a new database only, so that a
-- newcomer finds a working store at once. It holds:
--   3 banks, 3 suppliers and 8 articles (furniture and appliances, margins by percentage or by amount),
--   all brought in by 3 goods-in notes, so every article has stock;
--   5 clients, 3 guarantors and 5 credit applications, one in each state:
--     1 approved and paid in full (and invoiced), 2 approved and partly paid (its articles delivered),
--     3 paid off (Estado 2), 4 rejected, 5 pending;
--   15 receipts paying those applications with every kind of concept (enganche, first payment,
--     monthly instalments, mora) and one receipt for a plain name;
--   2 invoices (the credit of application 1, and one article sold for cash to a client),
--   1 delivery note, and 1 payable document paying part of a goods-in note.
-- Figures agree with the views: application 1 and 3 owe Q. 0.00, application 2 owes Q. 3,750.00.
-- Keys are given explicitly so the references below can be read.

INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES
    (1, 'Banco Industrial', '7a. avenida 5-10 zona 4, Guatemala'),
    (2, 'Banrural', 'Avenida La Reforma 9-30 zona 9, Guatemala'),
    (3, 'Banco G&T Continental', '6a. avenida 9-08 zona 9, Guatemala');

INSERT INTO Proveedor (ProveedorID, Nombre, NIT, Direccion, Telefonos, Fax, Contacto) VALUES
    (1, 'Distribuidora La Económica, S.A.', '1234567-8', 'Calzada Roosevelt 22-43 zona 11, Guatemala',
        '2440-1122 / 5512-3344', '2440-1123', 'Héctor Barrios'),
    (2, 'Importadora Electro Hogar, S.A.', '4561237-9', '18 calle 5-60 zona 10, Guatemala',
        '2366-7788', '2366-7789', 'Silvia Cifuentes'),
    (3, 'Muebles Finos de Occidente', '8796541-2', '4a. calle 12-15 zona 3, Quetzaltenango',
        '7761-4455 / 4123-9087', NULL, 'Rigoberto Xicará');

-- Selling prices (vwBuscaArticulo): a percentage above 0 rules, otherwise cost + amount.
INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor,
                      CreditoPorcentaje, CreditoValor, Activo) VALUES
    (1, 'Refrigeradora', 'RT38K5930SL 14 pies', 'Plateado', 4200, 25, 0, 45, 0, 1),        -- 5250.00 / 6090.00
    (2, 'Estufa', 'Atlas 30" 6 quemadores', 'Blanco', 2100, 0, 500, 0, 900, 1),             -- 2600.00 / 3000.00
    (3, 'Televisor', 'LED 50" UN50TU7000', 'Negro', 3100, 20, 0, 40, 0, 1),                 -- 3720.00 / 4340.00
    (4, 'Lavadora', 'WA17T6260BY 17 kg', 'Blanco', 3600, 0, 700, 0, 1300, 1),               -- 4300.00 / 4900.00
    (5, 'Juego de comedor', 'Mesa y 6 sillas', 'Caoba', 2800, 30, 0, 50, 0, 1),             -- 3640.00 / 4200.00
    (6, 'Sofá', 'Seccional 3 piezas', 'Gris', 3300, 25, 0, 45, 0, 1),                       -- 4125.00 / 4785.00
    (7, 'Licuadora', 'Oster 6805', 'Rojo', 350, 0, 100, 0, 175, 1),                         --  450.00 /  525.00
    (8, 'Microondas', 'NN-ST34 1.2 pies', 'Negro', 650, 0, 150, 0, 300, 1);                 --  800.00 /  950.00

INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, ProveedorID, Fecha, Descripcion) VALUES
    (1, 1501, 2, '2026-01-05', 'Línea blanca y electrónica'),
    (2, 872, 3, '2026-01-08', 'Muebles de sala y comedor'),
    (3, 2210, 1, '2026-02-02', 'Electrodomésticos pequeños');

-- Note 1 totals Q. 54,400.00, note 2 Q. 15,000.00, note 3 Q. 3,500.00.
INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES
    (1, 1, 4, 4200), (1, 2, 5, 2100), (1, 3, 4, 3100), (1, 4, 3, 3600), (1, 8, 6, 650),
    (2, 5, 3, 2800), (2, 6, 2, 3300),
    (3, 7, 10, 350);

-- Code: first letter of the surnames and a number counting within that letter.
INSERT INTO Cliente (ClienteID, Nombres, Apellidos, FechaNacimiento, NIT, CedulaRegistro, CedulaNumero,
                     CedulaExtendida, CodigoLetra, CodigoNumero, Limite, Activo) VALUES
    (1, 'MARÍA JOSÉ', 'MUÑOZ LÓPEZ', '1985-03-14', '2587413-6', 'A-1', '458712', 'Capital', 'M', 1, 15000, 1),
    (2, 'JUAN CARLOS', 'PÉREZ GARCÍA', '1990-07-22', 'C/F', 'A-1', '325698', 'Capital', 'P', 1, 10000, 1),
    (3, 'ANA LUCÍA', 'MORALES CHÁVEZ', '1978-11-02', '7854123-0', 'I-9', '102345', 'Quetzaltenango', 'M', 2, 8000, 1),
    (4, 'PEDRO ANTONIO', 'GÓMEZ RAMÍREZ', '1982-01-30', '3698521-4', 'A-1', '774512', 'Mixco', 'G', 1, 12000, 1),
    (5, 'SANDRA ELIZABETH', 'PÉREZ ORELLANA', '1995-05-09', 'C/F', 'A-1', '998745', 'Capital', 'P', 2, 5000, 1);

INSERT INTO ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, ClasificacionID) VALUES
    (4, '2026-04-13', 'Canceló la solicitud 1 antes del plazo', 0, 1),
    (1, '2026-07-20', 'Pagó la cuota de julio con cinco días de atraso', 25, 2);

INSERT INTO Fiador (FiadorID, Nombres, Apellidos, FechaNacimiento, CedulaRegistro, CedulaNumero,
                    CedulaExtendida, EstadoCivilID, Direccion, Telefonos, CasaPropia, CasaAlquilada,
                    CasaTiempo, TrabajoNombre, TrabajoDireccion, TrabajoTelefonos, TrabajoFax, TrabajoPuesto,
                    TrabajoJefe, TrabajoSueldo, TrabajoTiempo, OtrosIngresos, Activo) VALUES
    (1, 'LUIS FERNANDO', 'CASTILLO REYES', '1975-08-19', 'A-1', '221478', 'Capital', 2,
        '12 avenida 3-45 zona 1, Guatemala', '2232-1478 / 5589-1234', 1, 0, 15,
        'Municipalidad de Guatemala', '21 calle 6-77 zona 1', '2285-8000', NULL, 'Contador',
        'Lic. Mario Ortiz', 7500, 10, NULL, 1),
    (2, 'CARMEN ROSA', 'HERRERA DÍAZ', '1968-02-03', 'A-1', '114785', 'Villa Nueva', 5,
        'Colonia Enriqueta, manzana B lote 12, Villa Nueva', '6631-4521', 1, 0, 22,
        'Farmacia San José', 'Calzada Aguilar Batres 34-70 zona 12', '2477-5566', NULL, 'Administradora',
        'Dr. Julio Paz', 6200, 8, 'Alquiler de un local: Q. 1,500.00 al mes', 1),
    (3, 'JORGE MARIO', 'LÓPEZ SANTIZO', '1992-10-27', 'I-9', '301256', 'Quetzaltenango', 1,
        '7a. calle 10-20 zona 1, Quetzaltenango', '4478-9632', 0, 1, 3,
        'Transportes del Altiplano', 'Diagonal 2 4-55 zona 3, Quetzaltenango', '7763-2211', '7763-2212',
        'Piloto', 'Sr. Edgar Coyoy', 4500, 2, NULL, 1);

-- Estado: 0 pending, 1 approved, 2 paid off, 3 rejected. The monthly instalment the views give is
-- (lines - Enganche - Descuento - PrimerPago) / MesesCredito:
--   1: (5290 - 1000 - 290 - 1000) / 6 = 500     2: (9090 - 1000 - 90 - 500) / 10 = 750
--   3: (525 - 125) / 2 = 200                    4 and 5 were never paid.
INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, FiadorID, FiadorParentesco,
                       EstadoCivilID, CasaDireccion, CasaZona, CasaEstado, CasaCodigoPostal, CasaTelefonos,
                       CasaPropia, CasaAlquilada, CasaTiempo, Celular, Email, TrabajoNombre, TrabajoDireccion,
                       TrabajoZona, TrabajoEstado, TrabajoCodigoPostal, TrabajoTelefonos, TrabajoFax,
                       TrabajoPuesto, TrabajoSueldo, TrabajoJefe, TrabajoTiempo, OtrosIngresos, Descuento,
                       Enganche, PrimerPago, MesesCredito, DiaPago, Estado, Observaciones, FechaAprobacion,
                       Mora) VALUES
    (1, 1, '2026-01-12', 4, 1, 'Cuñado', 2, '5a. avenida 14-32, colonia El Milagro', '6', 'Mixco', '01057',
        '2434-9876', 1, 0, 8, '5521-7788', 'pedro.gomez@correo.com.gt', 'Cementos del Valle',
        'Km. 17.5 carretera a El Salvador', '0', 'Santa Catarina Pinula', '01051', '6628-3300', NULL,
        'Supervisor de bodega', 8500, 'Ing. Rolando Marroquín', 6, NULL,
        290, 1000, 1000, 6, 12, 1, NULL, '2026-01-13', 0),
    (2, 2, '2026-04-15', 1, 2, 'Tía', 2, '3a. calle 8-14 zona 7, colonia Kaminal Juyú', '7', 'Guatemala', '01007',
        '2594-1122', 0, 1, 4, '4012-3344', NULL, 'Colegio Santa Teresita', '10a. avenida 2-15 zona 7',
        '7', 'Guatemala', '01007', '2439-5500', NULL, 'Maestra', 5200, 'Licda. Irma Solís', 9,
        'Clases particulares', 90, 1000, 500, 10, 15, 1, NULL, '2026-04-16', 25),
    (3, 3, '2026-05-04', 3, 3, 'Hermano', 1, '14 avenida 4-21 zona 3', '3', 'Quetzaltenango', '09001',
        '7765-0011', 1, 0, 12, '5798-2233', NULL, 'Panadería La Espiga', '6a. calle 9-40 zona 1',
        '1', 'Quetzaltenango', '09001', '7761-0909', NULL, 'Cajera', 3800, 'Sr. Otto Gramajo', 3, NULL,
        0, 125, 0, 2, 4, 2, NULL, '2026-05-04', 0),
    (4, 4, '2026-06-08', 5, 3, 'Amigo', 1, '2a. calle 1-09 zona 18, colonia Paraíso II', '18', 'Guatemala', '01018',
        NULL, 0, 1, 1, '3344-1209', 'sandra.perez@correo.com.gt', 'Call center Atento', 'Zona 10',
        '10', 'Guatemala', '01010', '2385-4000', NULL, 'Agente', 3200, 'Sr. Kevin Ruiz', 1, NULL,
        0, 1000, 0, 18, 8, 3, 'Ingresos insuficientes para la cuota mensual; el fiador no pudo confirmar su trabajo.',
        '2026-06-10', 0),
    (5, 5, '2026-11-16', 2, 1, 'Primo', 3, 'Lote 45, sector B, Ciudad Quetzal', '0', 'San Juan Sacatepéquez', '01059',
        '6640-1010', 1, 0, 5, '5022-4411', NULL, 'Taller Mecánico El Rápido', 'Calzada San Juan 12-80 zona 7',
        '7', 'Guatemala', '01007', '2591-3030', NULL, 'Mecánico', 4800, 'Sr. Byron Estrada', 4, NULL,
        0, 700, 0, 12, 16, 0, NULL, NULL, 0);

-- Precio is the amount of the whole line.
INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES
    (1, 3, 1, 4340), (1, 8, 1, 950),
    (2, 1, 1, 6090), (2, 2, 1, 3000),
    (3, 7, 1, 525),
    (4, 6, 1, 4785), (4, 5, 1, 4200),
    (5, 4, 1, 4900);

-- Receipts of an application name it alone; receipt 4 is for a plain name. Efectivo + ChequeValor
-- - Vuelto is what the lines add up to.
INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, SolicitudID, ClienteID, Nombre, Concepto, BancoID,
                    ChequeNumero, ChequeValor, Efectivo, Vuelto) VALUES
    (1, 1, '2026-01-12', 1, 0, NULL, 'Enganche de la solicitud 1', 0, NULL, 0, 1000, 0),
    (2, 2, '2026-02-12', 1, 0, NULL, 'Primer pago de la solicitud 1', 2, '00045120', 1000, 0, 0),
    (3, 3, '2026-03-12', 1, 0, NULL, 'Cuotas 1 a 3 de la solicitud 1', 0, NULL, 0, 1500, 0),
    (4, 4, '2026-03-20', 0, 0, 'ROBERTO ESTRADA', 'Reparación de una lavadora', 0, NULL, 0, 200, 50),
    (5, 5, '2026-04-13', 1, 0, NULL, 'Cuotas 4 a 6, cancela la solicitud 1', 1, '00781254', 1500, 0, 0),
    (6, 6, '2026-04-15', 2, 0, NULL, 'Enganche de la solicitud 2', 0, NULL, 0, 1000, 0),
    (7, 7, '2026-05-04', 3, 0, NULL, 'Enganche de la solicitud 3', 0, NULL, 0, 150, 25),
    (8, 8, '2026-05-15', 2, 0, NULL, 'Primer pago de la solicitud 2', 0, NULL, 0, 500, 0),
    (9, 9, '2026-06-04', 3, 0, NULL, 'Cuota 1 de la solicitud 3', 0, NULL, 0, 200, 0),
    (10, 10, '2026-06-15', 2, 0, NULL, 'Cuota 1 de la solicitud 2', 3, '00120987', 750, 0, 0),
    (11, 11, '2026-07-04', 3, 0, NULL, 'Cuota 2, cancela la solicitud 3', 0, NULL, 0, 200, 0),
    (12, 12, '2026-07-20', 2, 0, NULL, 'Cuota 2 y mora de la solicitud 2', 0, NULL, 0, 800, 25),
    (13, 13, '2026-08-15', 2, 0, NULL, 'Cuota 3 de la solicitud 2', 0, NULL, 0, 750, 0),
    (14, 14, '2026-09-15', 2, 0, NULL, 'Cuota 4 de la solicitud 2', 0, NULL, 0, 750, 0),
    (15, 15, '2026-10-15', 2, 0, NULL, 'Cuota 5 de la solicitud 2', 1, '00799310', 750, 0, 0);

-- Concepts 1 to 4 are enganche, first payment, monthly instalment and mora (090-datos.sql); 9 is an
-- ordinary one (Reparación). Concept lines carry ArticuloID 0 and Cantidad 1.
INSERT INTO ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES
    (1, 1, 0, 1, 1000),
    (2, 2, 0, 1, 1000),
    (3, 3, 0, 1, 1500),
    (4, 9, 0, 1, 150),
    (5, 3, 0, 1, 1500),
    (6, 1, 0, 1, 1000),
    (7, 1, 0, 1, 125),
    (8, 2, 0, 1, 500),
    (9, 3, 0, 1, 200),
    (10, 3, 0, 1, 750),
    (11, 3, 0, 1, 200),
    (12, 3, 0, 1, 750), (12, 4, 0, 1, 25),
    (13, 3, 0, 1, 750),
    (14, 3, 0, 1, 750),
    (15, 3, 0, 1, 750);

-- Invoice 1 is the credit of application 1 (lines brought from it, EsCredito 1, total Q. 5,000.00,
-- tendered in cash as the invoice screen asks even of a credit paid off through receipts);
-- invoice 2 sells a microwave for cash to client 3, paid by cheque. An invoice names one customer
-- form only: the application, or the client (whose NIT lives in Cliente), or a typed name and NIT.
INSERT INTO Factura (FacturaID, NumeroFactura, Fecha, SolicitudID, ClienteID, Nombre, NIT, Descuento,
                     Observaciones, BancoID, ChequeNumero, ChequeValor, Efectivo, Vuelto, Estado) VALUES
    (1, 1, '2026-04-14', 1, 0, NULL, NULL, 290,
        'Venta al crédito, solicitud 1', 0, NULL, 0, 5000, 0, 0),
    (2, 2, '2026-10-02', 0, 3, NULL, NULL, 0,
        NULL, 1, '00801144', 800, 0, 0, 0);

-- Precio is the unit price here.
INSERT INTO FacturaDetalle (FacturaID, ArticuloID, ConceptoID, Cantidad, EsCredito, Precio) VALUES
    (1, 3, 0, 1, 1, 4340), (1, 8, 0, 1, 1, 950),
    (2, 8, 0, 1, 0, 800);

-- Application 2's articles went out the day after its approval.
INSERT INTO NotaEnvio (NotaID, NumeroNota, Fecha, SolicitudID, FacturaID, ReciboID, Direccion, Observaciones) VALUES
    (1, 1, '2026-04-16', 2, 0, 0, '3a. calle 8-14 zona 7, colonia Kaminal Juyú', 'Entregar por la tarde');

INSERT INTO NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) VALUES
    (1, 1, 1), (1, 2, 1);

-- Pays Q. 6,000.00 of goods-in note 2 (Q. 15,000.00).
INSERT INTO Documento (DocumentoID, NumeroDocumento, ProveedorID, Fecha, Descripcion) VALUES
    (1, 1, 3, '2026-02-15', 'Abono a la factura 872');

INSERT INTO DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES
    (1, 2, 6000);
