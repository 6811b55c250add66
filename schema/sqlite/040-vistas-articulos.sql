-- Articles and their stock. Stock is never stored: it is what the goods-in lines brought in less what
-- the delivery lines took out. Every figure is a correlated subquery over an indexed article column,
-- so that reading one article reads its own lines only.

-- Movements of one article: Ingresos = sum of NotaIngresoDetalle.Cantidad, Egresos = sum of
-- NotaEnvioDetalle.Cantidad, Existencia = Ingresos - Egresos.
CREATE VIEW vwMovimientoArticulo AS
SELECT A.ArticuloID AS ArticuloID,
       (SELECT total(I.Cantidad) FROM NotaIngresoDetalle I WHERE I.ArticuloID = A.ArticuloID) AS Ingresos,
       (SELECT total(E.Cantidad) FROM NotaEnvioDetalle E WHERE E.ArticuloID = A.ArticuloID) AS Egresos
FROM Articulo A;

-- The article search, read by position: 1 key, 2 name, 3 model, 4 colour, 5 cost, 6 and 7 the cash
-- margin, 8 the starting quantity of a new line (1), 9 units delivered, 10 stock, 11 and 12 the credit
-- margin; then the two selling prices for the clerk to see. A margin's percentage rules when above 0:
-- price = cost x (1 + percentage / 100), otherwise cost + amount; rounded to cents.
-- Inactive articles are listed too: the article screen finds them through this view to set them back.
CREATE VIEW vwBuscaArticulo AS
SELECT A.ArticuloID AS hidID,
       A.Nombre AS shw3800_str_Descripcion_del_articulo,
       A.Modelo AS shw1200_str_Modelo,
       A.Color AS shw1200_str_Color,
       round(ifnull(A.Costo, 0), 2) AS shw900_dbl_Costo,
       A.ContadoPorcentaje AS ContadoPorcentaje,
       A.ContadoValor AS ContadoValor,
       1 AS hidCantidad,
       M.Egresos AS hidEgresos,
       round(M.Ingresos - M.Egresos, 2) AS shw1000_dbl_Existencia,
       A.CreditoPorcentaje AS CreditoPorcentaje,
       A.CreditoValor AS CreditoValor,
       round(CASE WHEN ifnull(A.ContadoPorcentaje, 0) > 0
                  THEN ifnull(A.Costo, 0) * (1 + A.ContadoPorcentaje / 100.0)
                  ELSE ifnull(A.Costo, 0) + ifnull(A.ContadoValor, 0) END, 2) AS shw1300_dbl_Precio_contado,
       round(CASE WHEN ifnull(A.CreditoPorcentaje, 0) > 0
                  THEN ifnull(A.Costo, 0) * (1 + A.CreditoPorcentaje / 100.0)
                  ELSE ifnull(A.Costo, 0) + ifnull(A.CreditoValor, 0) END, 2) AS shw1300_dbl_Precio_credito
FROM Articulo A
INNER JOIN vwMovimientoArticulo M ON M.ArticuloID = A.ArticuloID;
