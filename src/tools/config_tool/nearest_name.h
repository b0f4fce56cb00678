#pragma once

#include <QString>
#include <QStringList>

/* The name that was probably meant: the one that takes the fewest letters left out, added, replaced or
 * swapped with their neighbour, in capitals or not. Empty when none comes near. */
QString nearestName(const QString &name, const QStringList &known);
