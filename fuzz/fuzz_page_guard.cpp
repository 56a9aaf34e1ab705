// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/help_book.h"
#include "engine/help/page_guard.h"
#include "fuzz_support.h"

#include <QTextDocument>

using namespace nubivane;

/// The input is a page of the help. Whatever the guard lets pass is laid out as the help's window
/// does it: the fuzzer's limits of time and memory are the promise.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray html = fuzz::inputBytes(data, size);
    if (!isHarmlessPage(html)) {
        return 0;
    }
    constexpr qreal WindowWidth = 500;
    const QString text = QString::fromUtf8(html);
    QTextDocument page;
    page.setHtml(text);
    page.setTextWidth(WindowWidth);
    page.size();  // has it laid out
    pageTitle(text);
    pageText(text);
    return 0;
}
