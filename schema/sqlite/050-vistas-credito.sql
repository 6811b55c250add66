-- Clients, guarantors and credit applications.

-- Client search, read by position: 1 key, 2 code (letter and number, G17), 3 given names, 4 surnames,
-- 5 NIT. A deactivated client is not offered.
CREATE VIEW vwBuscaCliente AS
SELECT C.ClienteID AS hidID,
       ifnull(C.CodigoLetra, '') || ifnull(C.CodigoNumero, '') AS shw680_str_Codigo,
       C.Nombres AS shw2200_str_Nombres,
       C.Apellidos AS shw2200_str_Apellidos,
       C.NIT AS shw1200_str_NIT,
       ifnull(C.CedulaRegistro, '') || ' ' || ifnull(C.CedulaNumero, '') AS shw1400_str_Cedula
FROM Cliente C
WHERE ifnull(C.Activo, 1) <> 0;

-- Guarantor search: 1 key. A deactivated guarantor is not offered.
CREATE VIEW vwBuscaFiador AS
SELECT F.FiadorID AS hidID,
       F.Nombres AS shw2200_str_Nombres,
       F.Apellidos AS shw2200_str_Apellidos,
       ifnull(F.CedulaRegistro, '') || ' ' || ifnull(F.CedulaNumero, '') AS shw1400_str_Cedula,
       F.Telefonos AS shw1600_str_Telefonos
FROM Fiador F
WHERE ifnull(F.Activo, 1) <> 0;

-- What the receipts paid on an application, one row per receipt line: Monto = Cantidad x Valor, under
-- the Tipo of the line's concept (null for ordinary concepts and article lines).
-- Read receipt by receipt of the application (CROSS JOIN fixes that order).
CREATE VIEW vwAbonoSolicitud AS
SELECT R.SolicitudID AS SolicitudID,
       C.Tipo AS Tipo,
       ifnull(RD.Cantidad, 0) * ifnull(RD.Valor, 0) AS Monto
FROM Recibo R
CROSS JOIN ReciboDetalle RD ON RD.ReciboID = R.ReciboID
LEFT JOIN Concepto C ON C.ConceptoID = RD.ConceptoID;

-- Lines of an application. SolicitudDetalle.Precio holds the amount of the whole line, so
-- Total = Precio and the unit price is Precio / Cantidad (the whole amount when Cantidad is 0);
-- both rounded to cents.
CREATE VIEW vwSolicitudDetalle AS
SELECT SD.SolicitudID AS SolicitudID,
       SD.ArticuloID AS ArticuloID,
       A.Nombre AS Nombre,
       A.Modelo AS Modelo,
       A.Color AS Color,
       SD.Cantidad AS Cantidad,
       round(CASE WHEN ifnull(SD.Cantidad, 0) <> 0 THEN ifnull(SD.Precio, 0) / SD.Cantidad
                  ELSE ifnull(SD.Precio, 0) END, 2) AS Precio,
       round(ifnull(SD.Precio, 0), 2) AS Total
FROM SolicitudDetalle SD
INNER JOIN Articulo A ON A.ArticuloID = SD.ArticuloID;

-- What every application adds up to: T, the sum of its lines' Precio, and paid(t), the sum of
-- vwAbonoSolicitud.Monto of Tipo t. Correlated subqueries over indexed keys, so that a lookup of one
-- application reads its own lines and receipts only.
CREATE VIEW vwCifrasSolicitud AS
SELECT S.*,
       (SELECT total(SD.Precio) FROM SolicitudDetalle SD WHERE SD.SolicitudID = S.SolicitudID) AS TotalLineas,
       (SELECT total(P.Monto) FROM vwAbonoSolicitud P WHERE P.SolicitudID = S.SolicitudID AND P.Tipo = 1) AS PagadoEnganche,
       (SELECT total(P.Monto) FROM vwAbonoSolicitud P WHERE P.SolicitudID = S.SolicitudID AND P.Tipo = 2) AS PagadoPrimerPago,
       (SELECT total(P.Monto) FROM vwAbonoSolicitud P WHERE P.SolicitudID = S.SolicitudID AND P.Tipo BETWEEN 1 AND 3) AS PagadoPlan,
       (SELECT total(P.Monto) FROM vwAbonoSolicitud P WHERE P.SolicitudID = S.SolicitudID AND P.Tipo = 4) AS PagadoMora
FROM Solicitud S;

-- Balances of an application, one row per application (T and paid(t) as in vwCifrasSolicitud):
--   Enganche     = Solicitud.Enganche - paid(1)
--   PrimerPago   = Solicitud.PrimerPago - paid(2)
--   Total        = T - Descuento - paid(1) - paid(2) - paid(3)     (what remains of the plan)
--   CuotaMensual = (T - Enganche - Descuento - PrimerPago) / MesesCredito, 0 without months
--   Mora         = Solicitud.Mora - paid(4)
-- Every figure is rounded to cents, so a balance paid in full reads exactly 0.
CREATE VIEW vwSaldosXSolicitud AS
SELECT X.SolicitudID AS SolicitudID,
       round(ifnull(X.Enganche, 0) - X.PagadoEnganche, 2) AS Enganche,
       round(ifnull(X.PrimerPago, 0) - X.PagadoPrimerPago, 2) AS PrimerPago,
       round(X.TotalLineas - ifnull(X.Descuento, 0) - X.PagadoPlan, 2) AS Total,
       CASE WHEN ifnull(X.MesesCredito, 0) > 0
            THEN round((X.TotalLineas - ifnull(X.Enganche, 0) - ifnull(X.Descuento, 0) - ifnull(X.PrimerPago, 0))
                       / X.MesesCredito, 2)
            ELSE 0.0 END AS CuotaMensual,
       round(ifnull(X.Mora, 0) - X.PagadoMora, 2) AS Mora
FROM vwCifrasSolicitud X;

-- Application search, read by name and by position: 1 key, 2 number, 3 status word, 4 client's name,
-- 5 client's code, 6 client's NIT. shw1200_dbl_Saldo, and Saldo beside it for the invoice's message,
-- is all that is still owed: Total + Mora of vwSaldosXSolicitud, that is
--   T - Descuento - paid(1 to 3) + Solicitud.Mora - paid(4), rounded to cents.
-- Status words: 0 Pendiente, 1 Aprobada, 2 Cancelada, 3 Rechazada.
CREATE VIEW vwBuscaSolicitud AS
SELECT X.SolicitudID AS hidID,
       X.NumeroSolicitud AS shw1200_int_Solicitud,
       CASE X.Estado WHEN 0 THEN 'Pendiente' WHEN 1 THEN 'Aprobada' WHEN 2 THEN 'Cancelada'
                     WHEN 3 THEN 'Rechazada' ELSE '' END AS shw800_str_Estado,
       trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, '')) AS shw3000_str_Nombre_del_cliente,
       ifnull(C.CodigoLetra, '') || ifnull(C.CodigoNumero, '') AS shw680_str_Codigo,
       ifnull(C.NIT, '') AS shw1200_str_NIT,
       X.Fecha AS shw1100_dat_Fecha,
       X.Saldo AS shw1200_dbl_Saldo,
       X.Saldo AS Saldo,
       X.ClienteID AS hidClienteID
FROM (SELECT S.SolicitudID, S.NumeroSolicitud, S.Estado, S.Fecha, S.ClienteID,
             round(S.TotalLineas - ifnull(S.Descuento, 0) - S.PagadoPlan + ifnull(S.Mora, 0) - S.PagadoMora, 2)
                 AS Saldo
      FROM vwCifrasSolicitud S) X
LEFT JOIN Cliente C ON C.ClienteID = X.ClienteID;
