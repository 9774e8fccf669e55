// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// The program that reads one quotation from an address or a file that anybody may have
// written. It gets the source as the user typed it and answers with text and author.

#include "platform/files.h"
#include "platform/jail.h"
#include "platform/readerside.h"
#include "sources/parsequote.h"
#include "sources/quoteanswer.h"
#include "sources/sourcebytes.h"
#include "sources/webload.h"

#include <QFile>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

// In each branch everything before confine() is the user's or the system's, and everything
// after it a stranger's.
std::optional<QByteArray> load(const SourceAddress& address) {
    if (!address.path.isEmpty()) {
        QFile file;
        const bool opened = openRegularFile(file, address.path);
        confine(JailKind::OpenFile);
        return opened ? readWithin(file, bodyLimit) : std::nullopt;
    }
    if (address.url.scheme() == "data"_L1) {
        confine(JailKind::OpenFile);
        const auto data = dataOf(address.url);
        return data && data->size() <= bodyLimit ? data : std::nullopt;
    }
    WebLoad web(address.url);
    confine(JailKind::Web, web.certificates());
    return web.run(bodyLimit);
}

} // namespace

int main(int argc, char** argv) {
    const auto task = receiveReaderTask(argc, argv);
    const auto address = task ? sourceAddress(QString::fromUtf8(task->request)) : std::nullopt;
    const auto body = address ? load(*address) : std::nullopt;
    const auto quote = body ? parseQuote(*body, secureRandomIndex()) : std::nullopt;
    endReader(quote && writeQuoteAnswer(*quote, task->answer));
}
