#pragma once

class BaseDePrueba;

// Fills a database built from the project's schema with a synthetic store of `solicitudes` credit
// applications and everything around them, in the proportions of a busy shop: per application two
// lines and three receipts of two lines; a delivery for one in three; a client for every two; 500
// articles brought in by one goods-in note per 20 applications, each half paid by a document.
void llenarTiendaSintetica(const BaseDePrueba& base, int solicitudes);
