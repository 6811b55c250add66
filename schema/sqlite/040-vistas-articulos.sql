-- Articles and their stock. Stock is never stored: it is what the goods-in lines brought in less what
-- the delivery lines took out. Every figure is a correlated subquery over the movement indexes by
-- article, which hold Cantidad too, so that reading one article reads its own lines, from the index
-- alone.

-- Each article with its movements: Ingresos = sum of NotaIngresoDetalle.Cantidad, Egresos = sum of
-- NotaEnvioDetalle.Cantidad, Existencia = Ingresos - Egresos.
-- A view that reads Egresos twice (units delivered, and stock) would run its subquery twice per row
-- if SQLite copied the subqueries into the outer columns (query flattening); a DISTINCT select is
-- never flattened, so each subquery runs once per article, and a condition on the outer view (the
-- key, a filter of the search screen) is still pushed down into it. The key makes every row distinct
-- already, so DISTINCT sorts nothing. Only a condition on constants is pushed down, which is how every
-- screen reads these views; joined to another table by a column, they would sum the movements of
-- every article (or line) first.
CREATE VIEW vwMovimientoArticulo AS
SELECT DISTINCT A.ArticuloID AS ArticuloID,
       A.Nombre AS Nombre,
       A.Modelo AS Modelo,
       A.Color AS Color,
       A.Costo AS Costo,
       A.ContadoPorcentaje AS ContadoPorcentaje,
       A.ContadoValor AS ContadoValor,
       A.CreditoPorcentaje AS CreditoPorcentaje,
       A.CreditoValor AS CreditoValor,
       (SELECT total(I.Cantidad) FROM NotaIngresoDetalle I WHERE I.ArticuloID = A.ArticuloID) AS Ingresos,
       (SELECT total(E.Cantidad) FROM NotaEnvioDetalle E WHERE E.ArticuloID = A.ArticuloID) AS Egresos
FROM Articulo A;

-- The article search, read by position: 1 key, 2 name, 3 model, 4 colour, 5 cost, 6 and 7 the cash
-- margin, 8 the starting quantity of a new line (1), 9 units delivered, 10 stock, 11 and 12 the credit
-- margin; then the two selling prices for the clerk to see. A margin's percentage rules when above 0:
-- price = cost x (1 + percentage / 100), otherwise cost + amount; rounded to cents.
-- Inactive articles are listed too: the article screen finds them through this view to set them back.
CREATE VIEW vwBuscaArticulo AS
SELECT ArticuloID AS hidID,
       Nombre AS shw3800_str_Descripcion_del_articulo,
       Modelo AS shw1200_str_Modelo,
       Color AS shw1200_str_Color,
       round(ifnull(Costo, 0), 2) AS shw900_dbl_Costo,
       ContadoPorcentaje AS ContadoPorcentaje,
       ContadoValor AS ContadoValor,
       1 AS hidCantidad,
       Egresos AS hidEgresos,
       round(Ingresos - Egresos, 2) AS shw1000_dbl_Existencia,
       CreditoPorcentaje AS CreditoPorcentaje,
       CreditoValor AS CreditoValor,
       round(CASE WHEN ifnull(ContadoPorcentaje, 0) > 0
                  THEN ifnull(Costo, 0) * (1 + ContadoPorcentaje / 100.0)
                  ELSE ifnull(Costo, 0) + ifnull(ContadoValor, 0) END, 2) AS shw1300_dbl_Precio_contado,
       round(CASE WHEN ifnull(CreditoPorcentaje, 0) > 0
                  THEN ifnull(Costo, 0) * (1 + CreditoPorcentaje / 100.0)
                  ELSE ifnull(Costo, 0) + ifnull(CreditoValor, 0) END, 2) AS shw1300_dbl_Precio_credito
FROM vwMovimientoArticulo;
