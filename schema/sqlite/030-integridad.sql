-- Rows that others still name cannot be deleted. The columns that name them hold 0 for "none", so
-- these are guards on delete rather than foreign keys; the message is what the screens show the clerk
-- as the driver's text. A client's history is not a reference: it stays behind when the client goes.

CREATE TRIGGER trgBancoEnUso BEFORE DELETE ON Banco
WHEN EXISTS (SELECT 1 FROM Recibo WHERE BancoID = OLD.BancoID)
  OR EXISTS (SELECT 1 FROM Factura WHERE BancoID = OLD.BancoID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse el banco: hay recibos o facturas que lo nombran.');
END;

CREATE TRIGGER trgProveedorEnUso BEFORE DELETE ON Proveedor
WHEN EXISTS (SELECT 1 FROM NotaIngreso WHERE ProveedorID = OLD.ProveedorID)
  OR EXISTS (SELECT 1 FROM Documento WHERE ProveedorID = OLD.ProveedorID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse el proveedor: hay notas de ingreso o documentos por pagar que lo nombran.');
END;

CREATE TRIGGER trgArticuloEnUso BEFORE DELETE ON Articulo
WHEN EXISTS (SELECT 1 FROM NotaIngresoDetalle WHERE ArticuloID = OLD.ArticuloID)
  OR EXISTS (SELECT 1 FROM NotaEnvioDetalle WHERE ArticuloID = OLD.ArticuloID)
  OR EXISTS (SELECT 1 FROM SolicitudDetalle WHERE ArticuloID = OLD.ArticuloID)
  OR EXISTS (SELECT 1 FROM ReciboDetalle WHERE ArticuloID = OLD.ArticuloID)
  OR EXISTS (SELECT 1 FROM FacturaDetalle WHERE ArticuloID = OLD.ArticuloID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse el artículo: hay documentos que lo nombran.');
END;

CREATE TRIGGER trgClienteEnUso BEFORE DELETE ON Cliente
WHEN EXISTS (SELECT 1 FROM Solicitud WHERE ClienteID = OLD.ClienteID)
  OR EXISTS (SELECT 1 FROM Recibo WHERE ClienteID = OLD.ClienteID)
  OR EXISTS (SELECT 1 FROM Factura WHERE ClienteID = OLD.ClienteID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse el cliente: hay solicitudes, recibos o facturas que lo nombran.');
END;

CREATE TRIGGER trgFiadorEnUso BEFORE DELETE ON Fiador
WHEN EXISTS (SELECT 1 FROM Solicitud WHERE FiadorID = OLD.FiadorID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse el fiador: hay solicitudes de crédito que lo nombran.');
END;

CREATE TRIGGER trgSolicitudEnUso BEFORE DELETE ON Solicitud
WHEN EXISTS (SELECT 1 FROM Recibo WHERE SolicitudID = OLD.SolicitudID)
  OR EXISTS (SELECT 1 FROM Factura WHERE SolicitudID = OLD.SolicitudID)
  OR EXISTS (SELECT 1 FROM NotaEnvio WHERE SolicitudID = OLD.SolicitudID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse la solicitud: hay recibos, facturas o notas de envío que la nombran.');
END;

CREATE TRIGGER trgConceptoEnUso BEFORE DELETE ON Concepto
WHEN EXISTS (SELECT 1 FROM ReciboDetalle WHERE ConceptoID = OLD.ConceptoID)
  OR EXISTS (SELECT 1 FROM FacturaDetalle WHERE ConceptoID = OLD.ConceptoID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse el concepto: hay recibos o facturas que lo nombran.');
END;

-- A payable document's lines pay goods-in notes: a note they name can't be deleted, nor its key
-- changed, and a line can name only a note that exists. The goods-in screen tells the general failure
-- of the delete apart from other failures and shows its own message.
CREATE TRIGGER trgNotaIngresoPagada BEFORE DELETE ON NotaIngreso
WHEN EXISTS (SELECT 1 FROM DocumentoDetalle WHERE IngresoID = OLD.IngresoID)
BEGIN
    SELECT RAISE(ABORT, 'No puede eliminarse la nota de ingreso: hay documentos por pagar que la nombran.');
END;

CREATE TRIGGER trgNotaIngresoPagadaClave BEFORE UPDATE OF IngresoID ON NotaIngreso
WHEN NEW.IngresoID IS NOT OLD.IngresoID
  AND EXISTS (SELECT 1 FROM DocumentoDetalle WHERE IngresoID = OLD.IngresoID)
BEGIN
    SELECT RAISE(ABORT, 'No puede cambiarse la nota de ingreso: hay documentos por pagar que la nombran.');
END;

CREATE TRIGGER trgDocumentoDetalleNota BEFORE INSERT ON DocumentoDetalle
WHEN NOT EXISTS (SELECT 1 FROM NotaIngreso WHERE IngresoID = NEW.IngresoID)
BEGIN
    SELECT RAISE(ABORT, 'No puede guardarse el pago: la nota de ingreso que nombra no existe.');
END;

CREATE TRIGGER trgDocumentoDetalleNotaCambia BEFORE UPDATE OF IngresoID ON DocumentoDetalle
WHEN NOT EXISTS (SELECT 1 FROM NotaIngreso WHERE IngresoID = NEW.IngresoID)
BEGIN
    SELECT RAISE(ABORT, 'No puede guardarse el pago: la nota de ingreso que nombra no existe.');
END;
