#include "diagnostic.h"

#include <iostream>

void printDiagnostic(QByteArrayView line)
{
    std::cout.write(line.data(), line.size()) << std::endl;
}
