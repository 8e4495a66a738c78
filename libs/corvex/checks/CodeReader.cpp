// SPDX-License-Identifier: MIT
#include "corvex/checks/CodeReader.h"

#include "corvex/checks/ExpressionSyntax.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString object(const QString &members)
{
    return u"Item {\n"_s + members + u"\n}\n"_s;
}

} // namespace

CodeReader::CodeReader()
{
    m_worker.moveToThread(&m_thread);
}

CodeReader::~CodeReader()
{
    errors();
}

void CodeReader::read(qsizetype first, const QStringList &texts)
{
    if (texts.isEmpty()) {
        return;
    }
    m_thread.start();
    QMetaObject::invokeMethod(&m_worker, [this, first, texts] { readInThread(first, texts); });
}

//! All at once; one by one only when something is wrong.
void CodeReader::readInThread(qsizetype first, const QStringList &texts)
{
    if (!m_syntax) {
        m_syntax = std::make_unique<ExpressionSyntax>();
    }
    QString all;
    for (const QString &text : texts) {
        all += object(text);
    }
    if (m_syntax->checkDocument(object(all)).valid) {
        return;
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const ExpressionSyntax::Result result = m_syntax->checkDocument(object(texts.at(i)));
        if (!result.valid) {
            m_errors.insert(first + i, result.message);
        }
    }
}

QHash<qsizetype, QString> CodeReader::errors()
{
    if (m_thread.isRunning()) {
        // After everything that was given. The engine ends in the thread in which it began.
        QMetaObject::invokeMethod(&m_worker, [this] {
            m_syntax.reset();
            m_thread.quit();
        });
        m_thread.wait();
    }
    return m_errors;
}

} // namespace Halvane::Corvex::Designer
