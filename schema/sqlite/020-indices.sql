-- One index for every lookup a screen or a balance view makes by owner, number or article, so that
-- reading one document touches its own rows only. The movements by article also hold Cantidad: an
-- article's stock sums all its lines, and read from the index alone each line costs no table read.

CREATE INDEX ixClienteCodigo            ON Cliente (CodigoLetra, CodigoNumero);
CREATE INDEX ixClienteHistorialCliente  ON ClienteHistorial (ClienteID);

CREATE INDEX ixSolicitudNumero          ON Solicitud (NumeroSolicitud);
CREATE INDEX ixSolicitudCliente         ON Solicitud (ClienteID);
CREATE INDEX ixSolicitudFiador          ON Solicitud (FiadorID);
CREATE INDEX ixSolicitudDetalleSolicitud ON SolicitudDetalle (SolicitudID, ArticuloID);

CREATE INDEX ixReciboNumero             ON Recibo (NumeroRecibo);
CREATE INDEX ixReciboSolicitud          ON Recibo (SolicitudID);
CREATE INDEX ixReciboCliente            ON Recibo (ClienteID);
CREATE INDEX ixReciboBanco              ON Recibo (BancoID);
CREATE INDEX ixReciboDetalleRecibo      ON ReciboDetalle (ReciboID, ArticuloID);

CREATE INDEX ixFacturaNumero            ON Factura (NumeroFactura);
CREATE INDEX ixFacturaSolicitud         ON Factura (SolicitudID);
CREATE INDEX ixFacturaCliente           ON Factura (ClienteID);
CREATE INDEX ixFacturaBanco             ON Factura (BancoID);
CREATE INDEX ixFacturaDetalleFactura    ON FacturaDetalle (FacturaID, ArticuloID);

CREATE INDEX ixNotaIngresoNumero        ON NotaIngreso (NumeroIngreso);
CREATE INDEX ixNotaIngresoProveedor     ON NotaIngreso (ProveedorID);
CREATE INDEX ixNotaIngresoDetalleNota   ON NotaIngresoDetalle (IngresoID);
CREATE INDEX ixNotaIngresoDetalleArticulo ON NotaIngresoDetalle (ArticuloID, Cantidad);

CREATE INDEX ixNotaEnvioNumero          ON NotaEnvio (NumeroNota);
CREATE INDEX ixNotaEnvioSolicitud       ON NotaEnvio (SolicitudID);
CREATE INDEX ixNotaEnvioFactura         ON NotaEnvio (FacturaID);
CREATE INDEX ixNotaEnvioRecibo          ON NotaEnvio (ReciboID);
CREATE INDEX ixNotaEnvioDetalleNota     ON NotaEnvioDetalle (NotaID, ArticuloID);
CREATE INDEX ixNotaEnvioDetalleArticulo ON NotaEnvioDetalle (ArticuloID, Cantidad);

CREATE INDEX ixDocumentoNumero          ON Documento (NumeroDocumento);
CREATE INDEX ixDocumentoProveedor       ON Documento (ProveedorID);
CREATE INDEX ixDocumentoDetalleDocumento ON DocumentoDetalle (DocumentoID);
CREATE INDEX ixDocumentoDetalleIngreso  ON DocumentoDetalle (IngresoID);
