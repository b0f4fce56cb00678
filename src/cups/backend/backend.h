#pragma once

#include <span>

/* What the exit status of a backend tells the print system. Its other values are not used here. */
enum class BackendStatus {
    Ok = 0, // the job is done
    Failed = 1, // what becomes of the job is the queue's error policy
    Hold = 3, // the job is held until a person releases it, the queue goes on
    Stop = 4, // the queue stops, the job stays
    RetryCurrent = 7 // the job is tried again at once, before any other
};

/*
 * The backend as the print system starts it: without arguments it lists what it can print on; with job, user,
 * title, copies, options and perhaps a file it prints the file, or standard input, on the device in the
 * variable DEVICE_URI. Messages and printer state go to standard error.
 */
BackendStatus runBackend(std::span<char *const> arguments);
