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
-- the payable screen subtracts the two itself, and shows the difference as text through Format under
-- the name shw1200_dbl_Saldo. That name is also a real column here, Total - Cancelado rounded to
-- cents: a condition names a column of the view before an alias of the select list, so the number
-- typed in that column's filter box ("... And shw1200_dbl_Saldo = 60") compares with a number and
-- finds the note, where against the formatted text ('60.00') it never would.
CREATE VIEW vwSaldosXNotaIngreso AS
SELECT X.hidID AS hidID,
       X.shw1200_int_No_Nota AS shw1200_int_No_Nota,
       X.shw1200_dat_Fecha AS shw1200_dat_Fecha,
       X.shw2500_str_Descripcion_general AS shw2500_str_Descripcion_general,
       X.shw1200_dbl_Total AS shw1200_dbl_Total,
       X.shw1200_dbl_Cancelado AS shw1200_dbl_Cancelado,
       X.hidProveedorID AS hidProveedorID,
       round(X.shw1200_dbl_Total - X.shw1200_dbl_Cancelado, 2) AS shw1200_dbl_Saldo
FROM (SELECT N.IngresoID AS hidID,
             N.NumeroIngreso AS shw1200_int_No_Nota,
             N.Fecha AS shw1200_dat_Fecha,
             N.Descripcion AS shw2500_str_Descripcion_general,
             round((SELECT total(ifnull(D.Cantidad, 0) * ifnull(D.Costo, 0))
                    FROM NotaIngresoDetalle D WHERE D.IngresoID = N.IngresoID), 2) AS shw1200_dbl_Total,
             round((SELECT total(ifnull(L.Valor, 0)) FROM DocumentoDetalle L WHERE L.IngresoID = N.IngresoID),
                   2) AS shw1200_dbl_Cancelado,
             N.ProveedorID AS hidProveedorID
      FROM NotaIngreso N) X;
