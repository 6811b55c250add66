-- Payable documents and the open balance of goods-in notes. Nothing is stored: a note's balance is its
-- value less what the payable lines naming it apply.

-- Payable-document search: 1 key. Valor = sum of its lines, rounded to cents.
CREATE VIEW vwBuscaDocumento AS
SELECT D.DocumentoID AS hidID,
       D.NumeroDocumento AS shw1200_int_Documento,
       D.Fecha AS shw1100_dat_Fecha,
       P.Nombre AS shw3000_str_Proveedor,
       D.Descripcion AS shw3500_str_Descripcion,
       round((SELECT total(ifnull(L.Valor, 0)) FROM DocumentoDetalle L WHERE L.DocumentoID = D.DocumentoID), 2)
           AS shw1200_dbl_Valor
FROM Documento D
LEFT JOIN Proveedor P ON P.ProveedorID = D.ProveedorID;

-- Lines of a payable document with the goods-in note each one pays.
CREATE VIEW vwDocumentoDetalle AS
SELECT L.DocumentoID AS DocumentoID,
       L.IngresoID AS IngresoID,
       N.NumeroIngreso AS NumeroIngreso,
       N.Fecha AS Fecha,
       N.Descripcion AS Descripcion,
       round(ifnull(L.Valor, 0), 2) AS Valor
FROM DocumentoDetalle L
INNER JOIN NotaIngreso N ON N.IngresoID = L.IngresoID;

-- Open balance of every goods-in note: shw1200_dbl_Total = sum of Cantidad x Costo of its lines,
-- shw1200_dbl_Cancelado = sum of the payable lines naming it (0, not Null, when there are none);
-- the payable screen subtracts the two itself.
CREATE VIEW vwSaldosXNotaIngreso AS
SELECT N.IngresoID AS hidID,
       N.NumeroIngreso AS shw1200_int_No_Nota,
       N.Fecha AS shw1200_dat_Fecha,
       N.Descripcion AS shw2500_str_Descripcion_general,
       round((SELECT total(ifnull(D.Cantidad, 0) * ifnull(D.Costo, 0))
              FROM NotaIngresoDetalle D WHERE D.IngresoID = N.IngresoID), 2) AS shw1200_dbl_Total,
       round((SELECT total(ifnull(L.Valor, 0)) FROM DocumentoDetalle L WHERE L.IngresoID = N.IngresoID), 2)
           AS shw1200_dbl_Cancelado,
       N.ProveedorID AS hidProveedorID
FROM NotaIngreso N;
