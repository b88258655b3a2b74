#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <QObject>

class TSCheckBoxAlert;

/// Puts the questions of a run to the user. The object lives on the main thread, where the alerts are made
/// and shown; the thread of the run asks and waits, one question at a time.
class TSExportQuestions : public QObject {
    Q_OBJECT

public:
    ~TSExportQuestions() override { giveUp(); }

    /// Any thread but the main one. Answers the alert's answer, or `otherwise` once nobody is left to ask.
    int ask(const std::function<TSCheckBoxAlert *()> &newAlert, int otherwise);
    /// Ends the waiting, now and from here on. An alert that is up is left to its parent.
    void giveUp();

private:
    void show(TSCheckBoxAlert *alert);
    void answer(int answer);

    std::mutex m_lock;
    std::condition_variable m_answered;
    std::optional<int> m_answer;
    bool m_isGivenUp = false;
};
