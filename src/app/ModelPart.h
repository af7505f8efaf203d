#pragma once

#include <QObject>

#include <utility>

namespace orlen {

/// What the parts of the application model have in common: they belong to one thread, and report a change of
/// a value after it.
class ModelPart : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    /// Ends the program on any other thread.
    void checkThread() const;

    template <typename Part, typename T>
    void assign(T& field, T value, void (Part::*changed)())
    {
        checkThread();
        if (field == value)
            return;
        field = std::move(value);
        Q_EMIT(static_cast<Part*>(this)->*changed)();
    }
};

} // namespace orlen
