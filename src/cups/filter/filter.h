#pragma once

#include <span>

/*
 * The filter as the print system starts it: with job, user, title, copies, options and perhaps a file it
 * reads the document in the file, or standard input, and writes what the queue's printer is to get to the
 * descriptor: all of it, or nothing. PRINTER names the queue and PPD its description. Messages go to standard
 * error. The result is the exit status: 0, or 1 when the job has failed.
 */
int runFilter(std::span<char *const> arguments, int printout);
