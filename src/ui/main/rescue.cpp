#include "ui/main/rescue.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Whoever opens the copy may do so from another folder.
QString FullPath(const QString &path)
{
    return path.isEmpty() ? path : QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

} // namespace

Rescue::Rescue(const ProjectDocument &document, const Environment &environment)
    : m_document(document), m_environment(environment)
{
    m_timer.setParent(this);
    m_timer.setObjectName(u"RescueTimer"_s);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(environment.rescueDelay);
    connect(&m_timer, &QTimer::timeout, this, &Rescue::Write);
    connect(&m_document, &ProjectDocument::TextsChanged, this, &Rescue::NoteChange);
    connect(&m_document, &ProjectDocument::QuestionsChanged, this, &Rescue::NoteQuestions);
    connect(&m_document, &ProjectDocument::Replaced, this, &Rescue::Forget);
    connect(&m_document, &ProjectDocument::Saved, this, &Rescue::Forget);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Rescue::Write);
}

Rescue::~Rescue()
{
    Forget();
}

void Rescue::Write()
{
    const bool isUnsaved = m_document.ProjectChanged() || m_questionsChanged;
    if (!isUnsaved || m_environment.stateFolder.isEmpty())
        return;
    if (!m_copy) {
        Result<RescueCopy> made = RescueCopy::Make(m_environment.stateFolder);
        if (!made)
            return m_timer.start(); // to try again
        m_copy = std::move(*made);
    }
    const Outcome written = m_copy->Write({m_document.project(), FullPath(m_document.path()),
                                           QDateTime::currentDateTime(), m_document.fingerprint()});
    if (written)
        return m_timer.stop();
    if (!m_copy->IsThere()) // somebody tidied up
        m_copy.reset();
    m_timer.start();
}

void Rescue::Leave()
{
    Write();
    m_copy.reset();
}

void Rescue::Forget()
{
    m_timer.stop();
    m_questionsChanged = false;
    if (m_copy)
        m_copy->Remove();
    m_copy.reset();
}

void Rescue::Adopt(RescueCopy copy)
{
    Forget();
    m_copy = std::move(copy);
}

/// Not started anew by each change, so that somebody who never rests has a copy, too.
void Rescue::NoteChange()
{
    if (!m_timer.isActive())
        m_timer.start();
}

/// A duplicated question does not count as a change that the user is asked about, but as work.
void Rescue::NoteQuestions()
{
    m_questionsChanged = true;
    NoteChange();
}

} // namespace vellumo
