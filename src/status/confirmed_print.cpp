#include "confirmed_print.h"

namespace {

PortResult waitUntilReady(PrinterPort &port, const PrintEvents &events)
{
    for (;;) {
        PrinterStatus status;
        if (const PortResult result = port.ask(status); result != PortResult::Done)
            return result;
        const bool goOn = !events.status || events.status(status);
        if (status.ready())
            return PortResult::Done;
        if (!goOn) // the listener has cancelled it
            return PortResult::Cancelled;
        if (const PortResult result = port.pause(); result != PortResult::Done)
            return result;
    }
}

} // namespace

Outcome printConfirmed(PrinterPort &port, std::string_view job, AnswersStatus answersStatus,
                       const PrintEvents &events)
{
    bool mute = answersStatus == AnswersStatus::Never;
    if (!mute) {
        const PortResult ready = waitUntilReady(port, events);
        mute = ready == PortResult::Silent && answersStatus == AnswersStatus::Unknown && !port.answered();
        if (ready != PortResult::Done && !mute)
            return Outcome::Failed;
    }

    if (events.sending)
        events.sending();
    const PortResult sent = port.send(job, events.stalled);
    if (sent != PortResult::Done && port.sent() == 0)
        return Outcome::Failed;
    if (sent == PortResult::Cancelled || sent == PortResult::Silent)
        port.restore(job.size() - port.sent());
    if (sent != PortResult::Done)
        return Outcome::Uncertain;

    if (mute)
        return port.finish(events.stalled) == PortResult::Done ? Outcome::Mute : Outcome::Uncertain;
    return port.confirm(events.status) == PortResult::Done ? Outcome::Printed : Outcome::Uncertain;
}
