#include "platform/post.h"

#include <QCoreApplication>

#include <utility>

namespace tavelo {

void post_to_interface(std::function<void()> step) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(step), Qt::QueuedConnection);
}

} // namespace tavelo
