#ifndef WIDGETWATCH_H
#define WIDGETWATCH_H

#include <QIcon>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPixmap>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

/// Watches a widget, or another object, from construction on: every signal that it emits, in order, and what
/// changed of its properties, its picture, and whether it blocks its signals. The object must outlive it.
class WidgetWatch : private QObject
{
public:
    explicit WidgetWatch(QObject *watched)
        : m_watched(watched)
        , m_before(stateOf(watched))
    {
        const QMetaObject *meta = watched->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            const bool isSignal = method.methodType() == QMetaMethod::Signal;
            if (isSignal && !(method.attributes() & QMetaMethod::Cloned))
                QMetaObject::connect(watched, i, this, ownSlot(i), Qt::DirectConnection);
        }
    }

    /// The signatures of the signals that were emitted, as in "valueChanged(int)".
    const QStringList &emitted() const { return m_emitted; }

    /// The names of the properties that differ now from what they were, and "picture", "signalsBlocked".
    QStringList changed() const
    {
        QStringList names;
        const QVariantMap now = stateOf(m_watched);
        for (auto it = now.begin(); it != now.end(); ++it) {
            if (m_before.value(it.key()) != it.value())
                names << it.key();
        }
        return names;
    }

    /// No signal and no change.
    bool isUntouched() const { return m_emitted.isEmpty() && changed().isEmpty(); }

    /// Every readable property of an object, the picture of a widget, and whether signals are blocked.
    static QVariantMap stateOf(QObject *object)
    {
        QVariantMap state{{QStringLiteral("signalsBlocked"), object->signalsBlocked()}};
        // The picture comes first: it settles what is laid out late.
        if (auto *widget = qobject_cast<QWidget *>(object))
            state[QStringLiteral("picture")] = widget->grab().toImage();

        const QMetaObject *meta = object->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            // Qt did not register every type of its properties.
            if (property.isReadable() && property.userType() != QMetaType::UnknownType)
                state[QString::fromLatin1(property.name())] = comparable(property.read(object));
        }
        const auto dynamicNames = object->dynamicPropertyNames();
        for (const QByteArray &name : dynamicNames)
            state[QString::fromLatin1(name)] = object->property(name);
        return state;
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        const int method = QObject::qt_metacall(call, id, arguments);
        if (call == QMetaObject::InvokeMetaMethod && method >= 0)
            m_emitted << QString::fromLatin1(m_watched->metaObject()->method(method).methodSignature());
        return -1;
    }

private:
    static int ownSlot(int method) { return QObject::staticMetaObject.methodCount() + method; }

    // Icons and pixmaps do not compare as variants.
    static QVariant comparable(const QVariant &value)
    {
        if (value.userType() == QMetaType::QIcon)
            return value.value<QIcon>().cacheKey();
        if (value.userType() == QMetaType::QPixmap)
            return value.value<QPixmap>().cacheKey();
        return value;
    }

    QObject *m_watched;
    QVariantMap m_before;
    QStringList m_emitted;
};

#endif
