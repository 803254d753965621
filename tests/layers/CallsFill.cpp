// Calls a function of tools/. Links with tools/, but not with the layers below and beside it.

#include "model/DrawingDocument.h"
#include "tools/FillTool.h"

int main() {
    marlevo::DrawingDocument document;
    marlevo::performFill(document, {});
}
