# SPDX-License-Identifier: MIT
"""Whole programs that show one dialog, seen from a display with a window manager."""
from cases import Case, by_size, files
from results import Limit


def programs(setting, folder):
    return {
        "floor": [setting.file("benchmarks/BareDialogBenchmark"), "--folder=" + folder],
        "subject": [setting.file("SampleHost/vyfiledialog"), "open", "--style", "qt", "--modes",
                    "--start", folder, "--filter", "Drawings&*.dwg&All files&*.*"],
        "kdialog": ["kdialog", "--getopenfilename", folder + "/", "Drawings (*.dwg)"],
        "zenity": ["zenity", "--file-selection", f"--filename={folder}/",
                   "--file-filter=Drawings | *.dwg"],
        "yad": ["yad", "--file", f"--filename={folder}/", "--file-filter=Drawings | *.dwg"],
    }


def whole_process(setting):
    limits = {("mapped", "floor"): Limit("ratio", 1.15), ("mapped", "kdialog"): Limit("ratio", 1),
              ("mapped", "zenity"): Limit("ratio", 1)}
    answered = {("answer to exit", "floor"): Limit("ratio", 0.50)}
    for until, small, large in (("mapped", 21, 11), ("rest", 9, 2)):
        for size in setting.sizes:
            commands = {side: [setting.program("WholeProcess"), f"--side={side}",
                               f"--until={until}", *command]
                        for side, command in programs(setting, setting.folder(size)).items()}
            yield Case("whole process", f"{files(size)}, until {until}", size, commands,
                       setting.repetitions(by_size(size, small, large)),
                       limits if until == "mapped" else answered if size >= 100_000 else {},
                       curve=until, on_display=True)


BENCHMARKS = {"whole-process": whole_process}
