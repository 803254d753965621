#pragma once

#include "model/DrawingDocument.h"
#include "ui/Follower.h"

#include <QToolBar>

#include <functional>
#include <list>

namespace marlevo {

/// A row of controls bound to a document: each shows what the document says, follows it, and
/// changes nothing but the document. A control's name is its text or label and its accessible name.
class ControlRow : public QToolBar {
    Q_OBJECT

public:
    template <typename Value>
    using Read = std::function<Value(const DrawingDocument&)>;
    template <typename Value>
    using Write = std::function<void(DrawingDocument&, Value)>;
    using Command = std::function<void(DrawingDocument&)>;

    /// The document must outlive the row.
    ControlRow(const QString& title, DrawingDocument& document, QWidget* parent = nullptr);

    /// A button that runs `press`.
    void addButton(const QString& name, Command press);

    /// A slider over whole numbers of `unit`, with its name and value in words beside it.
    void addSlider(const QString& name, const QString& unit, int least, int most, Read<double> read,
                   Write<double> write);

private:
    DrawingDocument& document_;
    std::list<Follower> followers_;
};

}  // namespace marlevo
