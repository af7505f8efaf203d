#pragma once

#include <QObject>

#include <utility>

namespace orlen {

/// Base of the application model's parts: bound to one thread, and signals a change once it is made.
class ModelPart : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    /// Stops the program when called on another thread.
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
