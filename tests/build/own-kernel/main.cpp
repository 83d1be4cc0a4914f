// SPDX-License-Identifier: MIT
#include "VyFileDialog.h"

// A request that no back-end serves says so, without a window.
int main(int argc, char**)
{
    if (argc > 1)
        CVyFileDialog::Create();
    CVyString path;
    const CVyString text;
    const int status = CVyFileDialog::GetFileName(nullptr, &path, 0, CVyUserIO::FileNameOpen, text,
                                                  text, text, text, nullptr, nullptr,
                                                  CVyUserIO::FileNameNoFlags, nullptr);
    return status == VyStatus::Failed ? 0 : 1;
}
