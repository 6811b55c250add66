-- Goods coming in and going out. Nothing marks a sale as delivered: what is still to deliver of an
-- article on a document is the quantity sold on the document's article lines less the quantity of the
-- delivery lines of the notes whose origin is that document. An application counts once it is
-- approved (Estado 1 or 2). Every line of an invoice or a receipt that names an article counts on
-- it, an invoice's lines brought in from an application (EsCredito) among them: each document's
-- pending goods are its own lines less the notes made against that document.

-- Goods-in search: 1 key. Total = sum of Cantidad x Costo of its lines, rounded to cents.
CREATE VIEW vwBuscaNotaIngreso AS
SELECT N.IngresoID AS hidID,
       N.NumeroIngreso AS shw1100_int_No_Factura,
       N.Fecha AS shw1100_dat_Fecha,
       P.Nombre AS shw3000_str_Proveedor,
       N.Descripcion AS shw3500_str_Descripcion,
       round((SELECT total(ifnull(D.Cantidad, 0) * ifnull(D.Costo, 0))
              FROM NotaIngresoDetalle D WHERE D.IngresoID = N.IngresoID), 2) AS shw1200_dbl_Total
FROM NotaIngreso N
LEFT JOIN Proveedor P ON P.ProveedorID = N.ProveedorID;

-- Lines of a goods-in note with their article: Ingresos is the line's quantity, Egresos and Existencia
-- the article's units delivered and stock (Ingresos - Egresos over all its lines), CostoTotal =
-- Cantidad x Costo rounded to cents. The article's movements are read per line, in a DISTINCT select
-- for the reason told at vwMovimientoArticulo: each subquery once per line, and the note's key pushed
-- down to its own lines.
CREATE VIEW vwNotaIngresoDetalle AS
SELECT L.IngresoID AS IngresoID,
       L.ArticuloID AS ArticuloID,
       A.Nombre AS Nombre,
       A.Modelo AS Modelo,
       A.Color AS Color,
       round(ifnull(L.Costo, 0), 2) AS Costo,
       A.ContadoPorcentaje AS ContadoPorcentaje,
       A.ContadoValor AS ContadoValor,
       L.Cantidad AS Ingresos,
       L.EgresosArticulo AS Egresos,
       L.IngresosArticulo - L.EgresosArticulo AS Existencia,
       A.CreditoPorcentaje AS CreditoPorcentaje,
       A.CreditoValor AS CreditoValor,
       round(ifnull(L.Cantidad, 0) * ifnull(L.Costo, 0), 2) AS CostoTotal
FROM (SELECT DISTINCT D.NotaIngresoDetalleID, D.IngresoID, D.ArticuloID, D.Cantidad, D.Costo,
             (SELECT total(I.Cantidad) FROM NotaIngresoDetalle I WHERE I.ArticuloID = D.ArticuloID)
                 AS IngresosArticulo,
             (SELECT total(E.Cantidad) FROM NotaEnvioDetalle E WHERE E.ArticuloID = D.ArticuloID)
                 AS EgresosArticulo
      FROM NotaIngresoDetalle D) L
INNER JOIN Articulo A ON A.ArticuloID = L.ArticuloID;

-- Delivery-note search, read by position: 1 key, 2 number, 3 date, 4 application key, 5 its number,
-- 6 invoice key, 7 its number, 8 receipt key, 9 its number (keys and numbers 0 when none),
-- 10 customer's name, then the address. The customer is found as on the receipt and invoice searches:
-- for an invoice or a receipt of an application, the application's client; for one of a client, that
-- client; else the name typed on the document.
CREATE VIEW vwBuscaNotaEnvio AS
SELECT N.NotaID AS hidID,
       N.NumeroNota AS shw1000_int_No_Envio,
       N.Fecha AS shw1100_dat_Fecha,
       ifnull(N.SolicitudID, 0) AS hidSolicitudID,
       ifnull(S.NumeroSolicitud, 0) AS shw1100_int_Solicitud,
       ifnull(N.FacturaID, 0) AS hidFacturaID,
       ifnull(F.NumeroFactura, 0) AS shw1100_int_Factura,
       ifnull(N.ReciboID, 0) AS hidReciboID,
       ifnull(R.NumeroRecibo, 0) AS shw1100_int_Recibo,
       CASE WHEN C.ClienteID IS NOT NULL THEN trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, ''))
            ELSE ifnull(F.Nombre, ifnull(R.Nombre, '')) END AS shw3000_str_Nombre_del_cliente,
       N.Direccion AS shw3000_str_Direccion
FROM NotaEnvio N
LEFT JOIN Solicitud S ON S.SolicitudID = N.SolicitudID AND N.SolicitudID > 0
LEFT JOIN Factura F ON F.FacturaID = N.FacturaID AND N.FacturaID > 0
LEFT JOIN Recibo R ON R.ReciboID = N.ReciboID AND N.ReciboID > 0
LEFT JOIN Solicitud SF ON SF.SolicitudID = F.SolicitudID AND F.SolicitudID > 0
LEFT JOIN Solicitud SR ON SR.SolicitudID = R.SolicitudID AND R.SolicitudID > 0
LEFT JOIN Cliente C ON C.ClienteID = CASE WHEN N.SolicitudID > 0 THEN S.ClienteID
                                          WHEN N.FacturaID > 0 THEN ifnull(SF.ClienteID, F.ClienteID)
                                          ELSE ifnull(SR.ClienteID, R.ClienteID) END;

CREATE VIEW vwNotaEnvioDetalle AS
SELECT D.NotaID AS NotaID,
       D.ArticuloID AS ArticuloID,
       D.Cantidad AS Cantidad,
       A.Nombre AS Nombre,
       A.Modelo AS Modelo,
       A.Color AS Color
FROM NotaEnvioDetalle D
LEFT JOIN Articulo A ON A.ArticuloID = D.ArticuloID;

-- Pending articles of one document, one row per article (its first line stands for all of them):
-- shw1200_int_Saldo = units of the article on the document's lines - units delivered against it.
-- The delivered units are read note by note of the document (CROSS JOIN fixes that order), never
-- through every delivery of a popular article.
CREATE VIEW vwSaldoXArticuloXSolicitud AS
SELECT SD.ArticuloID AS hidArticuloID,
       SD.SolicitudID AS hidSolicitudID,
       trim(ifnull(A.Nombre, '') || ' ' || ifnull(A.Modelo, '') || ' ' || ifnull(A.Color, '')) AS shw3000_str_Descripcion,
       CAST((SELECT total(X.Cantidad) FROM SolicitudDetalle X
             WHERE X.SolicitudID = SD.SolicitudID AND X.ArticuloID = SD.ArticuloID)
            - (SELECT total(E.Cantidad) FROM NotaEnvio N CROSS JOIN NotaEnvioDetalle E ON E.NotaID = N.NotaID
               WHERE N.SolicitudID = SD.SolicitudID AND E.ArticuloID = SD.ArticuloID) AS INTEGER) AS shw1200_int_Saldo
FROM SolicitudDetalle SD
INNER JOIN Solicitud S ON S.SolicitudID = SD.SolicitudID AND S.Estado IN (1, 2)
LEFT JOIN Articulo A ON A.ArticuloID = SD.ArticuloID
WHERE SD.ArticuloID > 0
  AND NOT EXISTS (SELECT 1 FROM SolicitudDetalle P
                  WHERE P.SolicitudID = SD.SolicitudID AND P.ArticuloID = SD.ArticuloID
                    AND P.SolicitudDetalleID < SD.SolicitudDetalleID);

CREATE VIEW vwSaldoXArticuloXFactura AS
SELECT FD.ArticuloID AS hidArticuloID,
       FD.FacturaID AS hidFacturaID,
       trim(ifnull(A.Nombre, '') || ' ' || ifnull(A.Modelo, '') || ' ' || ifnull(A.Color, '')) AS shw3000_str_Descripcion,
       CAST((SELECT total(X.Cantidad) FROM FacturaDetalle X
             WHERE X.FacturaID = FD.FacturaID AND X.ArticuloID = FD.ArticuloID)
            - (SELECT total(E.Cantidad) FROM NotaEnvio N CROSS JOIN NotaEnvioDetalle E ON E.NotaID = N.NotaID
               WHERE N.FacturaID = FD.FacturaID AND E.ArticuloID = FD.ArticuloID) AS INTEGER) AS shw1200_int_Saldo
FROM FacturaDetalle FD
LEFT JOIN Articulo A ON A.ArticuloID = FD.ArticuloID
WHERE FD.ArticuloID > 0
  AND NOT EXISTS (SELECT 1 FROM FacturaDetalle P
                  WHERE P.FacturaID = FD.FacturaID AND P.ArticuloID = FD.ArticuloID
                    AND P.FacturaDetalleID < FD.FacturaDetalleID);

CREATE VIEW vwSaldoXArticuloXRecibo AS
SELECT RD.ArticuloID AS hidArticuloID,
       RD.ReciboID AS hidReciboID,
       trim(ifnull(A.Nombre, '') || ' ' || ifnull(A.Modelo, '') || ' ' || ifnull(A.Color, '')) AS shw3000_str_Descripcion,
       CAST((SELECT total(X.Cantidad) FROM ReciboDetalle X
             WHERE X.ReciboID = RD.ReciboID AND X.ArticuloID = RD.ArticuloID)
            - (SELECT total(E.Cantidad) FROM NotaEnvio N CROSS JOIN NotaEnvioDetalle E ON E.NotaID = N.NotaID
               WHERE N.ReciboID = RD.ReciboID AND E.ArticuloID = RD.ArticuloID) AS INTEGER) AS shw1200_int_Saldo
FROM ReciboDetalle RD
LEFT JOIN Articulo A ON A.ArticuloID = RD.ArticuloID
WHERE RD.ArticuloID > 0
  AND NOT EXISTS (SELECT 1 FROM ReciboDetalle P
                  WHERE P.ReciboID = RD.ReciboID AND P.ArticuloID = RD.ArticuloID
                    AND P.ReciboDetalleID < RD.ReciboDetalleID);

-- Documents with articles sold, delivered or not (a document delivered in full is still found by its
-- number), read by position: 1 key, 2 number, 3 customer's name, 4 the application's home address
-- (free on the other two); shw1200_dbl_Saldo = the sum of its articles' shw1200_int_Saldo.
CREATE VIEW vwSaldosArticulosXSolicitud AS
SELECT S.SolicitudID AS hidID,
       S.NumeroSolicitud AS shw1200_int_Solicitud,
       trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, '')) AS shw3000_str_Nombre_del_cliente,
       ifnull(S.CasaDireccion, '') AS hidDireccion,
       S.Fecha AS shw1100_dat_Fecha,
       (SELECT total(V.shw1200_int_Saldo) FROM vwSaldoXArticuloXSolicitud V
        WHERE V.hidSolicitudID = S.SolicitudID) AS shw1200_dbl_Saldo
FROM Solicitud S
LEFT JOIN Cliente C ON C.ClienteID = S.ClienteID
WHERE S.Estado IN (1, 2)
  AND EXISTS (SELECT 1 FROM SolicitudDetalle SD WHERE SD.SolicitudID = S.SolicitudID AND SD.ArticuloID > 0);

CREATE VIEW vwSaldosArticulosXFactura AS
SELECT F.FacturaID AS hidFacturaID,
       F.NumeroFactura AS shw1200_int_Factura,
       CASE WHEN C.ClienteID IS NOT NULL THEN trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, ''))
            ELSE ifnull(F.Nombre, '') END AS shw3200_str_Nombre_del_cliente,
       F.Fecha AS shw1100_dat_Fecha,
       (SELECT total(V.shw1200_int_Saldo) FROM vwSaldoXArticuloXFactura V
        WHERE V.hidFacturaID = F.FacturaID) AS shw1200_dbl_Saldo
FROM Factura F
LEFT JOIN Solicitud S ON S.SolicitudID = F.SolicitudID AND F.SolicitudID > 0
LEFT JOIN Cliente C ON C.ClienteID = CASE WHEN F.SolicitudID > 0 THEN S.ClienteID ELSE F.ClienteID END
WHERE EXISTS (SELECT 1 FROM FacturaDetalle FD WHERE FD.FacturaID = F.FacturaID AND FD.ArticuloID > 0);

CREATE VIEW vwSaldosArticulosXRecibo AS
SELECT R.ReciboID AS hidReciboID,
       R.NumeroRecibo AS shw1200_int_Recibo,
       CASE WHEN C.ClienteID IS NOT NULL THEN trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, ''))
            ELSE ifnull(R.Nombre, '') END AS shw3200_str_Nombre_del_cliente,
       R.Fecha AS shw1100_dat_Fecha,
       (SELECT total(V.shw1200_int_Saldo) FROM vwSaldoXArticuloXRecibo V
        WHERE V.hidReciboID = R.ReciboID) AS shw1200_dbl_Saldo
FROM Recibo R
LEFT JOIN Solicitud S ON S.SolicitudID = R.SolicitudID AND R.SolicitudID > 0
LEFT JOIN Cliente C ON C.ClienteID = CASE WHEN R.SolicitudID > 0 THEN S.ClienteID ELSE R.ClienteID END
WHERE EXISTS (SELECT 1 FROM ReciboDetalle RD WHERE RD.ReciboID = R.ReciboID AND RD.ArticuloID > 0);
