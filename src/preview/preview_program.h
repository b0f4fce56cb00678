#pragma once

/* Runs tavolux-preview with these arguments to its end; returns its exit status. */
int runPreview(int argc, char *argv[]);
