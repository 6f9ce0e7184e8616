#pragma once
// How tools look and which keys call them, by their ids.

#include <QIcon>
#include <QKeySequence>
#include <QString>

namespace zu::desktop {

// An id that is known may have more behind it: tools of one sort on different pages do.

/// The theme's icon of a tool; null for an id that has none.
QIcon tool_icon(const QString& id);
/// The keys of a tool; empty for most.
QKeySequence tool_shortcut(const QString& id);

}  // namespace zu::desktop
