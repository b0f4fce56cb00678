#include "preview_program.h"

int main(int argc, char *argv[])
{
    return runPreview(argc, argv);
}
