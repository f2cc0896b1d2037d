#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

/// Asks for another name as long as \a taken says that a curve of this name exists already. Returns
/// the first free name, at once when \a name is free, or nothing when the user cancels.
std::optional<QString> askFreeCurveName(QWidget *parent, const QString &name,
                                        const std::function<bool(const QString &)> &taken);
