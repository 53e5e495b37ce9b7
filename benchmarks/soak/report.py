"""Judges and draws what the soak saw: report.py SAMPLES PLOT. Ends with 1 unless everything is flat.

Flat means: after the first quarter, in which caches fill, the last quarter's median is no more than this above the
second quarter's; and what the machines had handed out was always back.
"""

import pathlib
import statistics
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent))
import charts  # noqa: E402

ALLOWED = {"memory in use": 64 << 10, "resident memory": 2 << 20, "threads": 0, "open files": 0}
MEBIBYTE = 1 << 20


def main(samples, plot):
    rows = [[float(word) for word in line.split()] for line in pathlib.Path(samples).read_text().splitlines()]
    if len(rows) < 20:
        sys.exit(f"{len(rows)} samples are too few to tell")
    seconds, rounds, resident, used, threads, files, held = zip(*rows)
    series = {"memory in use": used, "resident memory": resident, "threads": threads, "open files": files}
    quarter = len(rows) // 4
    failures = []
    print(f"{int(rounds[-1])} machines in {seconds[-1] / 60:.1f} minutes")
    for name, values in series.items():
        before, after = statistics.median(values[quarter:2 * quarter]), statistics.median(values[-quarter:])
        flat = after - before <= ALLOWED[name]
        print(f'{name:24} {before:12.0f} -> {after:12.0f}  {"flat" if flat else "GROWS"}')
        if not flat:
            failures.append(name)
    print(f'{"handles not given back":24} {max(held):12.0f}')
    if max(held) > 0:
        failures.append("handles")

    pathlib.Path(plot).parent.mkdir(parents=True, exist_ok=True)
    pathlib.Path(plot).write_text(charts.lines(
        f"{int(rounds[-1])} changing machines", seconds,
        [("memory in use", "MiB", [value / MEBIBYTE for value in used]),
         ("resident memory", "MiB", [value / MEBIBYTE for value in resident]),
         ("threads", "", threads), ("open files", "", files), ("handles not given back", "", held)]))
    if failures:
        sys.exit("not flat: " + ", ".join(failures))


main(*sys.argv[1:])
