#pragma once

/*
 * One whole run, given the program's arguments: reads the document argv[1] and prints it to argv[2]; a third
 * argument is accepted and ignored. Every failure is one line on standard output.
 */
void compile(int argc, char *argv[]);
