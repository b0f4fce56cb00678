#pragma once

#include "printer_port.h"

/*
 * What is known of a job after it was printed:
 *   Printed    the printer has confirmed it.
 *   Failed     nothing was sent; it can be tried again.
 *   Uncertain  it was sent, or a part of it, and not confirmed. Only a person who looks at the paper can
 * tell, so it must not be repeated by itself. Mute       it was sent to a printer that does not answer;
 * nobody will ever know.
 */
enum class Outcome { Printed, Failed, Uncertain, Mute };

enum class AnswersStatus {
    Unknown, // mute if it does not answer now
    Known, // it has answered before: as long as it does not, it is not ready
    Never // it is not even asked
};

/* What is told while a job is printed. Each may be empty. */
struct PrintEvents
{
    /* Every status, before and after sending; false: do not wait for a better one. */
    std::function<bool(const PrinterStatus &)> status;
    /* The first byte is about to be sent. */
    std::function<void()> sending;
    /* The printer has been taking nothing for a while. */
    std::function<void()> stalled;
};

/*
 * Waits, without a limit, until the printer says that it is ready; sends the job; waits until the printer
 * confirms it. Cancelling is Failed before the first byte, and Uncertain after it; the printer is in its
 * normal state then. The descriptor may be closed at once afterwards.
 */
Outcome printConfirmed(PrinterPort &port, std::string_view job, AnswersStatus answersStatus,
                       const PrintEvents &events = {});
