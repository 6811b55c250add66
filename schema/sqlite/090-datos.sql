-- Rows the database holds before the program first runs. The receipt screen acts on the Tipo of a
-- concept: 1 enganche, 2 first payment, 3 monthly instalment, 4 mora; a null Tipo is an ordinary
-- concept that any receipt or invoice may carry.

INSERT INTO Concepto (Descripcion, Tipo) VALUES
    ('Enganche', 1),
    ('Primer pago', 2),
    ('Cuota mensual', 3),
    ('Mora', 4),
    ('Gastos administrativos', NULL),
    ('Gastos de cobranza', NULL),
    ('Flete', NULL),
    ('Instalación', NULL),
    ('Reparación', NULL),
    ('Otros cobros', NULL);

INSERT INTO Clasificacion (Descripcion) VALUES
    ('Excelente'),
    ('Bueno'),
    ('Regular'),
    ('Malo');

INSERT INTO EstadoCivil (Descripcion) VALUES
    ('Soltero(a)'),
    ('Casado(a)'),
    ('Unido(a)'),
    ('Divorciado(a)'),
    ('Viudo(a)');

INSERT INTO VersionEsquema (Version, Descripcion) VALUES
    (1, 'Tablas, vistas y filas iniciales de la tienda');
