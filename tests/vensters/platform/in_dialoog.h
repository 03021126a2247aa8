// A dialog that waits for an answer, and somebody who gives it.
#pragma once

#include "platform/dialogs.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace tavelo::test {

// Does something with the dialog that `vraag` waits for.
template <class Dialoog>
void bij_dialoog(const std::function<void(Dialoog&)>& doe, const std::function<void()>& vraag) {
    bool gezien = false;
    QTimer kijker;
    QObject::connect(&kijker, &QTimer::timeout, &kijker, [&] {
        auto* dialoog = dynamic_cast<Dialoog*>(QApplication::activeModalWidget());
        if (!dialoog || gezien) return;
        gezien = true;
        kijker.stop();
        doe(*dialoog);
    });
    kijker.start(5);
    vraag();
    EXPECT_TRUE(gezien);
}

struct Dialogs : testing::Test {
    QWidget venster;
    DialogOwner eigenaar{&venster};
    void SetUp() override { venster.show(); }
};

} // namespace tavelo::test
