// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/CodeReader.h"

#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/common/Processors.h"

#include <atomic>
#include <mutex>
#include <optional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The number of texts that are parsed together.
constexpr qsizetype batchSize = 256;

QString object(const QString &members)
{
    return u"Item {\n"_s + members + u"\n}\n"_s;
}

//! Parses all texts together, and one by one only if there is an error.
void read(ExpressionSyntax &syntax, const QStringList &texts,
          const std::function<void(qsizetype, QString)> &report)
{
    QString all;
    for (const QString &text : texts) {
        all += object(text);
    }
    if (syntax.checkDocument(object(all)).valid) {
        return;
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const ExpressionSyntax::Result result = syntax.checkDocument(object(texts.at(i)));
        if (!result.valid) {
            report(i, result.message);
        }
    }
}

} // namespace

QHash<qsizetype, QString> CodeReader::errors(const QStringList &texts)
{
    QHash<qsizetype, QString> errors;
    std::mutex mutex;
    std::atomic<qsizetype> next = 0;
    const auto readSome = [&] {
        std::optional<ExpressionSyntax> syntax; // an engine belongs to one thread
        for (qsizetype first = next.fetch_add(batchSize); first < texts.size();
             first = next.fetch_add(batchSize)) {
            if (!syntax) {
                syntax.emplace();
            }
            read(*syntax, texts.mid(first, batchSize), [&](qsizetype place, const QString &message) {
                const std::lock_guard lock(mutex);
                errors.insert(first + place, message);
            });
        }
    };
    Common::Processors::run(size_t(texts.size() / batchSize + 1), readSome);
    return errors;
}

} // namespace Halvane::Corvex::Designer
