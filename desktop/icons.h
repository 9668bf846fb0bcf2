#pragma once

#include <QIcon>
#include <QRectF>
#include <QString>

class QPainter;

namespace korvantes::desktop {

/// Draws the icon of that name into a square area: "buscar", "imprimir", "hoja", "marcar",
/// "cancelar", "borrar", "guardar", "salir", "nuevo", "imagen", "agentes", "liquidacion",
/// "informe", "pdf", "anterior", "siguiente", "alejar", "acercar", "base", "acerca"; for message
/// boxes "critico", "pregunta", "aviso", "informacion".
/// Unknown names draw nothing.
void paintIcon(QPainter& painter, const QString& name, const QRectF& area, bool enabled = true);
bool hasIcon(const QString& name);
/// The same as an icon of a toolkit: sharp at every size and scale.
QIcon iconNamed(const QString& name);

}  // namespace korvantes::desktop
