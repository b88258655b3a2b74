#include "ui/export/TSExportQuestions.h"

#include "controls/TSCheckBoxAlert.h"

int TSExportQuestions::ask(const std::function<TSCheckBoxAlert *()> &newAlert, int otherwise)
{
    std::unique_lock lock(m_lock);
    m_answer.reset();
    // Queued and awaited here: a blocking call would hold up a quit that waits for this thread.
    QMetaObject::invokeMethod(
        this, [this, newAlert] { show(newAlert()); }, Qt::QueuedConnection);
    m_answered.wait(lock, [this] { return m_answer || m_isGivenUp; });
    return m_answer.value_or(otherwise);
}

void TSExportQuestions::show(TSCheckBoxAlert *alert)
{
    alert->setAttribute(Qt::WA_DeleteOnClose);
    connect(alert, &QDialog::finished, this, &TSExportQuestions::answer);
    alert->open();
}

void TSExportQuestions::answer(int answer)
{
    const std::lock_guard lock(m_lock);
    m_answer = answer;
    m_answered.notify_all();
}

void TSExportQuestions::giveUp()
{
    const std::lock_guard lock(m_lock);
    m_isGivenUp = true;
    m_answered.notify_all();
}
