// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemApprovals.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/SafeFile.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

//! A larger file is not a file of approvals.
constexpr qint64 largestFile = 64LL * 1024 * 1024;

struct Approval
{
    QString code;
    QString path; //!< as in the file, or the last path of a removed object
    QString property;
    QString message;
    QString reason;
    bool isResolved = false; //!< the object was found in the project
    QPointer<DesignerObject> object = {};
    QByteArray line = {};       //!< as in the file; empty for a new approval
    QJsonObject otherKeys = {}; //!< of that line, which this program does not know

    bool isFor(const Problem &problem) const
    {
        return code == QString::fromUtf8(problem.kind().word) && property == problem.property
               && message == problem.message
               && (problem.source ? object == problem.source : path == problem.object);
    }
    //! Messages quote the names of objects, except the one about channels.
    void rename(const QString &oldName, const QString &newName)
    {
        message.replace(u"\"%1\""_s.arg(oldName), u"\"%1\""_s.arg(newName));
        if (code == QString::fromUtf8(ProblemKind::of(ProblemCode::ChannelShared).word)) {
            QStringList words = message.split(u' ');
            words.replaceInStrings(QRegularExpression(u"^%1$"_s.arg(QRegularExpression::escape(oldName))),
                                   newName);
            message = words.join(u' ');
        }
    }
    //! Whether an element of \a screen has the short name in messages about the object.
    bool seesElementsOf(const Screen *screen) const
    {
        return !object || !object->screen() || object->screen() == screen;
    }
    QString presentPath() const { return object && object->project() ? object->objectPath() : path; }
    //! Whether the object is deleted, unless that is undone.
    bool isGone() const { return isResolved && !(object && object->project()); }
};

//! Null if the line is not an approval.
std::optional<Approval> read(const QByteArray &line)
{
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    const auto text = [&json](QLatin1StringView key) { return json.value(key).toString(); };
    Approval approval{text("code"_L1), text("object"_L1), text("property"_L1), text("message"_L1),
                      text("reason"_L1)};
    approval.line = line;
    approval.otherKeys = json;
    for (const QString &key : {u"code"_s, u"object"_s, u"property"_s, u"message"_s, u"reason"_s}) {
        approval.otherKeys.remove(key);
    }
    return approval.code.isEmpty() || approval.path.isEmpty() ? std::nullopt : std::optional(approval);
}

QByteArray written(const Approval &approval)
{
    QJsonObject json = approval.otherKeys;
    json.insert(u"code"_s, approval.code);
    json.insert(u"object"_s, approval.presentPath());
    json.insert(u"message"_s, approval.message);
    if (!approval.property.isEmpty()) {
        json.insert(u"property"_s, approval.property);
    }
    if (!approval.reason.isEmpty()) {
        json.insert(u"reason"_s, approval.reason);
    }
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

//! Without the line ends, which some tools convert.
QList<QByteArray> linesOf(const QByteArray &contents)
{
    QList<QByteArray> lines = contents.split('\n');
    for (QByteArray &line : lines) {
        line = line.trimmed();
    }
    return lines;
}

} // namespace

//! Stores the approvals and follows the names of their objects.
class ProblemApprovals::Follower : public ModelObserver
{
public:
    Follower(Project &project, ProblemApprovals &approvals)
        : m_project(&project)
        , m_approvals(approvals)
    {
        project.observers().add(this);
        load();
    }

    const QString &error() const { return m_error; }
    const Approval *find(const Problem &problem) const
    {
        const auto range = m_all.equal_range(problem.message);
        const auto found = std::find_if(
            range.first, range.second, [&problem](const auto &entry) { return entry.second.isFor(problem); });
        return found == range.second ? nullptr : &found->second;
    }
    void add(const Problem &problem, const QString &reason);
    bool remove(const Problem &problem);
    void load();
    bool save();

    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override
    {
        Q_UNUSED(newObject);
        aboutToRemove(list, index, oldObject);
    }
    void projectLoaded() override
    {
        load();
        emit m_approvals.changed();
    }
    void projectSaved() override
    {
        if (!save()) {
            emit m_approvals.saveFailed(m_error);
        }
    }
    void projectAboutToBeDestroyed() override { m_project = nullptr; }

private:
    using ByMessage = std::multimap<QString, Approval>;

    bool readFile(QByteArray &bytes);
    bool addLine(const QByteArray &line);
    bool takeOver(const QByteArray &contents);
    bool write(const QByteArray &bytes);
    bool fail(const QString &english, const QString &reason = {});
    bool failAt(int line)
    {
        return fail(u"Line %2 of the file \"%1\" is not an approval. Correct or delete the line."_s,
                    QString::number(line));
    }
    QByteArray contents() const;

    Project *m_project;
    ProblemApprovals &m_approvals;
    ByMessage m_all;
    QByteArray m_known; //!< the contents of the file
    QString m_path;     //!< where it was read or written last
    QString m_error;
    bool m_isUnreadable = false;
};

bool ProblemApprovals::Follower::fail(const QString &english, const QString &reason)
{
    m_error = LocalizationHelper::coreString(english).arg(m_project->approvalsPath(), reason);
    return false;
}

bool ProblemApprovals::Follower::readFile(QByteArray &bytes)
{
    QFile file(m_project->approvalsPath());
    if (file.fileName().isEmpty() || !file.exists()) {
        return true;
    }
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile) {
        return fail(u"The file \"%1\" cannot be read: %2"_s,
                    file.isOpen() ? LocalizationHelper::coreString(u"it is too large."_s)
                                  : file.errorString());
    }
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError
           || fail(u"The file \"%1\" cannot be read: %2"_s, file.errorString());
}

void ProblemApprovals::Follower::load()
{
    m_all.clear();
    m_known.clear();
    m_error.clear();
    m_path = m_project->approvalsPath();
    m_isUnreadable = !readFile(m_known);
    int number = 0;
    for (const QByteArray &line : linesOf(m_known)) {
        ++number;
        if (!line.isEmpty() && !addLine(line)) {
            m_isUnreadable = true;
            failAt(number);
            m_all.clear();
            return;
        }
    }
}

bool ProblemApprovals::Follower::addLine(const QByteArray &line)
{
    std::optional<Approval> approval = read(line);
    if (approval) {
        approval->object = ProjectPath::find(*m_project, approval->path).object;
        approval->isResolved = approval->object;
        m_all.emplace(approval->message, *approval);
    }
    return approval.has_value();
}

//! Adds and removes what others have added to the file and removed from it since it was read. Only adds the
//! lines of a file that was never read, as after a recovery.
bool ProblemApprovals::Follower::takeOver(const QByteArray &contents)
{
    const QList<QByteArray> theirs = linesOf(contents);
    const QList<QByteArray> known =
        m_path == m_project->approvalsPath() ? linesOf(m_known) : QList<QByteArray>();
    const QSet<QByteArray> inFile(theirs.begin(), theirs.end());
    const QSet<QByteArray> before(known.begin(), known.end());
    QSet<QByteArray> ours;
    for (const auto &[message, approval] : m_all) {
        ours.insert(written(approval));
        ours.insert(approval.line);
    }
    std::erase_if(m_all, [&](const auto &entry) {
        const QByteArray &line = entry.second.line;
        return !line.isEmpty() && before.contains(line) && !inFile.contains(line);
    });
    for (qsizetype i = 0; i < theirs.size(); ++i) {
        const QByteArray &line = theirs[i];
        const bool isNew = !line.isEmpty() && !before.contains(line) && !ours.contains(line);
        if (isNew && !addLine(line)) {
            return failAt(int(i) + 1);
        }
    }
    m_known = contents;
    m_path = m_project->approvalsPath();
    return true;
}

QByteArray ProblemApprovals::Follower::contents() const
{
    QList<Approval> present;
    for (const auto &[message, approval] : m_all) {
        if (!approval.isGone()) {
            present.append(approval);
            present.last().path = approval.presentPath();
        }
    }
    std::ranges::sort(present, {}, [](const Approval &each) {
        return std::tie(each.path, each.property, each.code, each.message);
    });
    QByteArray lines;
    for (const Approval &approval : std::as_const(present)) {
        lines += written(approval) + '\n';
    }
    return lines;
}

bool ProblemApprovals::Follower::save()
{
    if (!m_project || m_project->approvalsPath().isEmpty() || m_isUnreadable) {
        return !m_isUnreadable;
    }
    m_error.clear();
    QByteArray inFile;
    if (!readFile(inFile) || (inFile != m_known && !takeOver(inFile))) {
        return false;
    }
    const QByteArray lines = contents();
    if (lines != m_known && !write(lines)) {
        return false;
    }
    for (auto &[message, approval] : m_all) {
        approval.line = written(approval);
    }
    m_known = lines;
    m_path = m_project->approvalsPath();
    return true;
}

bool ProblemApprovals::Follower::write(const QByteArray &bytes)
{
    const QString path = m_project->approvalsPath();
    if (bytes.isEmpty()) {
        return !QFile::exists(path) || QFile::remove(path) || fail(u"The file \"%1\" cannot be deleted."_s);
    }
    Common::SafeFile file(path);
    if (!file.openForWriting(&m_error)) {
        return false;
    }
    file.write(bytes);
    return file.commit(&m_error);
}

void ProblemApprovals::Follower::add(const Problem &problem, const QString &reason)
{
    const Approval *old = find(problem);
    Approval approval{QString::fromUtf8(problem.kind().word),
                      problem.path(),
                      problem.property,
                      problem.message,
                      reason,
                      !problem.source.isNull(),
                      problem.source};
    approval.otherKeys = old ? old->otherKeys : QJsonObject();
    remove(problem);
    m_all.emplace(problem.message, approval);
}

bool ProblemApprovals::Follower::remove(const Problem &problem)
{
    return std::erase_if(m_all, [&problem](const auto &entry) { return entry.second.isFor(problem); }) > 0;
}

void ProblemApprovals::Follower::valueChanged(const SharedProperty &property, const QString &previousValue)
{
    const DesignerObject *object = property->parentObject();
    const QString oldName = IdentifierInfo(previousValue).name();
    if (m_all.empty() || property != object->idProperty() || oldName.isEmpty()) {
        return;
    }
    const Screen *screen = object->screen();
    const bool isElement = screen && screen != object;
    ByMessage renamed;
    for (auto entry = m_all.begin(); entry != m_all.end();) {
        Approval approval = entry->second;
        if (!isElement || approval.seesElementsOf(screen)) {
            approval.rename(oldName, object->getIdName());
        }
        if (approval.message == entry->first) {
            ++entry;
        } else {
            renamed.emplace(approval.message, approval);
            entry = m_all.erase(entry);
        }
    }
    m_all.merge(renamed);
}

void ProblemApprovals::Follower::aboutToRemove(const SharedProperty &, qsizetype, DesignerObject *object)
{
    for (auto &[message, approval] : m_all) {
        for (const DesignerObject *each = approval.object; each; each = each->ownerObject()) {
            if (each == object) {
                approval.path = approval.object->objectPath();
                break;
            }
        }
    }
}

ProblemApprovals::ProblemApprovals(Project &project, QObject *parent)
    : QObject(parent)
    , m_follower(std::make_unique<Follower>(project, *this))
{ }

ProblemApprovals::~ProblemApprovals() = default;

bool ProblemApprovals::isApproved(const Problem &problem) const
{
    return m_follower->find(problem);
}

QString ProblemApprovals::reasonFor(const Problem &problem) const
{
    const Approval *approval = m_follower->find(problem);
    return approval ? approval->reason : QString();
}

void ProblemApprovals::mark(QList<Problem> &problems) const
{
    for (Problem &problem : problems) {
        problem.isApproved = isApproved(problem);
    }
}

void ProblemApprovals::approve(const Problem &problem, const QString &reason)
{
    m_follower->add(problem, reason);
    emit changed();
}

bool ProblemApprovals::withdraw(const Problem &problem)
{
    const bool isRemoved = m_follower->remove(problem);
    if (isRemoved) {
        emit changed();
    }
    return isRemoved;
}

bool ProblemApprovals::save()
{
    return m_follower->save();
}

QString ProblemApprovals::errorString() const
{
    return m_follower->error();
}

} // namespace Halvane::Corvex::Designer
