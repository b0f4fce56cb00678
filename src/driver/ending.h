#pragma once

/* How a printout ended: with its document, or with the rest of the document missing. */
enum class Ending { complete, incomplete };
