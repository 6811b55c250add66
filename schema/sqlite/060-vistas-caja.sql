-- Receipts and invoices. A document is for an application, a registered client or a plain name; the
-- customer shown is the application's client, else the client, else the name typed on the document.

-- Receipt search, read by position: 1 key, 2 number, 3 date, 4 application key (0 for none),
-- 5 application number (0 for none), 6 client key (0 for none), 7 client's code, 8 name on the
-- receipt. Total = sum of its lines' Cantidad x Valor, rounded to cents.
CREATE VIEW vwBuscaRecibo AS
SELECT R.ReciboID AS hidID,
       R.NumeroRecibo AS shw1000_int_Recibo,
       R.Fecha AS shw1100_dat_Fecha,
       ifnull(R.SolicitudID, 0) AS hidSolicitudID,
       ifnull(S.NumeroSolicitud, 0) AS shw1100_int_Solicitud,
       ifnull(R.ClienteID, 0) AS hidClienteID,
       ifnull(C.CodigoLetra, '') || ifnull(C.CodigoNumero, '') AS shw680_str_Codigo,
       CASE WHEN C.ClienteID IS NOT NULL THEN trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, ''))
            ELSE ifnull(R.Nombre, '') END AS shw3000_str_Nombre,
       round((SELECT total(ifnull(RD.Cantidad, 0) * ifnull(RD.Valor, 0))
              FROM ReciboDetalle RD WHERE RD.ReciboID = R.ReciboID), 2) AS shw1200_dbl_Total
FROM Recibo R
LEFT JOIN Solicitud S ON S.SolicitudID = R.SolicitudID AND R.SolicitudID > 0
LEFT JOIN Cliente C ON C.ClienteID = CASE WHEN R.SolicitudID > 0 THEN S.ClienteID ELSE R.ClienteID END;

-- Lines of a receipt: a concept's description, or the article's name, model and colour joined by
-- blanks. Total = Cantidad x Valor, rounded to cents.
CREATE VIEW vwReciboDetalle AS
SELECT RD.ReciboID AS ReciboID,
       RD.ConceptoID AS ConceptoID,
       RD.ArticuloID AS ArticuloID,
       RD.Cantidad AS Cantidad,
       CASE WHEN A.ArticuloID IS NOT NULL
            THEN trim(ifnull(A.Nombre, '') || ' ' || ifnull(A.Modelo, '') || ' ' || ifnull(A.Color, ''))
            ELSE ifnull(K.Descripcion, '') END AS Descripcion,
       round(ifnull(RD.Valor, 0), 2) AS Valor,
       round(ifnull(RD.Cantidad, 0) * ifnull(RD.Valor, 0), 2) AS Total
FROM ReciboDetalle RD
LEFT JOIN Articulo A ON A.ArticuloID = RD.ArticuloID AND RD.ArticuloID > 0
LEFT JOIN Concepto K ON K.ConceptoID = RD.ConceptoID AND RD.ConceptoID > 0;

-- Invoice search, read by position: 1 key, 2 number, 3 date, 4 client key, 5 application key,
-- 6 application number (0 for none), 7 name on the invoice, 8 NIT (the client's for an application or
-- a client, the one typed on the invoice otherwise). Total = sum of Cantidad x Precio - Descuento.
CREATE VIEW vwBuscaFactura AS
SELECT F.FacturaID AS hidID,
       F.NumeroFactura AS shw1000_int_Factura,
       F.Fecha AS shw1100_dat_Fecha,
       ifnull(F.ClienteID, 0) AS hidClienteID,
       ifnull(F.SolicitudID, 0) AS hidSolicitudID,
       ifnull(S.NumeroSolicitud, 0) AS shw1100_int_Solicitud,
       CASE WHEN C.ClienteID IS NOT NULL THEN trim(ifnull(C.Nombres, '') || ' ' || ifnull(C.Apellidos, ''))
            ELSE ifnull(F.Nombre, '') END AS shw3000_str_Nombre,
       CASE WHEN C.ClienteID IS NOT NULL THEN ifnull(C.NIT, '') ELSE ifnull(F.NIT, '') END AS shw1200_str_NIT,
       round((SELECT total(ifnull(FD.Cantidad, 0) * ifnull(FD.Precio, 0))
              FROM FacturaDetalle FD WHERE FD.FacturaID = F.FacturaID) - ifnull(F.Descuento, 0), 2)
           AS shw1200_dbl_Total
FROM Factura F
LEFT JOIN Solicitud S ON S.SolicitudID = F.SolicitudID AND F.SolicitudID > 0
LEFT JOIN Cliente C ON C.ClienteID = CASE WHEN F.SolicitudID > 0 THEN S.ClienteID ELSE F.ClienteID END;

-- Lines of an invoice, described as on receipts. Total = Cantidad x Precio, rounded to cents.
CREATE VIEW vwFacturaDetalle AS
SELECT FD.FacturaID AS FacturaID,
       ifnull(FD.ArticuloID, 0) AS ArticuloID,
       ifnull(FD.ConceptoID, 0) AS ConceptoID,
       FD.Cantidad AS Cantidad,
       ifnull(FD.EsCredito, 0) AS EsCredito,
       CASE WHEN A.ArticuloID IS NOT NULL
            THEN trim(ifnull(A.Nombre, '') || ' ' || ifnull(A.Modelo, '') || ' ' || ifnull(A.Color, ''))
            ELSE ifnull(K.Descripcion, '') END AS Descripcion,
       round(ifnull(FD.Precio, 0), 2) AS Precio,
       round(ifnull(FD.Cantidad, 0) * ifnull(FD.Precio, 0), 2) AS Total
FROM FacturaDetalle FD
LEFT JOIN Articulo A ON A.ArticuloID = FD.ArticuloID AND FD.ArticuloID > 0
LEFT JOIN Concepto K ON K.ConceptoID = FD.ConceptoID AND FD.ConceptoID > 0;
