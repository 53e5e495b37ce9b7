"""Compares the results of benchmarks/run.sh with each other and with their limits."""

import argparse
import collections
import json
import pathlib
import statistics
import sys

import charts


def read(folder):
    """Returns the repetitions of each benchmark; exits if one failed."""
    runs = collections.defaultdict(list)
    for path in sorted(folder.glob("*.json")):
        for run in json.loads(path.read_text())["benchmarks"]:
            if run["run_type"] != "iteration":
                continue
            if run.get("error_occurred"):
                sys.exit(f'{run["name"]}: {run["error_message"]}')
            runs[run["name"].split("/iterations:")[0].split("/process_time")[0].split("/manual_time")[0]].append(run)
    return runs


class Report:
    def __init__(self, runs):
        self.runs = runs
        self.rows = []  # label, ratio, limit
        self.lines = []
        self.missed = []

    def median(self, name, value):
        return statistics.median(run[value] for run in self.runs[name])

    def add(self, label, ratio, limit, figures=""):
        verdict = "" if limit is None else "ok" if ratio <= limit else "MISSED"
        if verdict == "MISSED":
            self.missed.append(label)
        self.rows.append((label, ratio, limit))
        self.lines.append(f'{label:58} {ratio:6.2f} {"" if limit is None else f"<= {limit:.2f}":8} {verdict:7} {figures}')

    def compare(self, label, ours, other, limit, value="cpu_time"):
        mine, theirs = self.median(ours, value), self.median(other, value)
        unit = self.runs[ours][0]["time_unit"]
        self.add(label, mine / theirs, limit, f"{mine:.4g} {unit} / {theirs:.4g} {unit}")

    def dispatch(self):
        for other, limit in (("Concurrent", 0.7), ("BarePool", 1.0)):
            name = {"Concurrent": "QtConcurrent::run", "BarePool": "QThreadPool::start"}[other]
            for producers in (1, 4):
                for workers in (1, 2, 4):
                    size = f"/producers:{producers}/workers:{workers}"
                    self.compare(f"Dispatch, producers {producers}, workers {workers} / {name}",
                                 f"EmptyTasks<Dispatcher>{size}", f"EmptyTasks<{other}>{size}", limit, "real_time")

    def module(self):
        for time, limit in ((5, 1.1), (0, None)):
            requests = f"requests of {time} us" if time else "requests of no time"
            suffix = f"/request_us:{time}"
            self.compare(f"Scan, {requests} / calls alone", f"ScanByModule{suffix}", f"ScanByCallsAlone{suffix}", limit)
            for work in ("Identify", "Read"):
                for protocol in ("ATA", "SCSI", "NVMe"):
                    self.compare(f"{work} {protocol}, {requests} / bridge", f"{work}ByProtocol/{protocol}{suffix}",
                                 f"{work}ByBridge/{protocol}{suffix}", limit)
        self.compare("One copy of the scan result / calls alone", "DescriptionsAlone/request_us:0",
                     "ScanByCallsAlone/request_us:0", None)

    def growth(self):
        for family, name in ((1, "CSMI"), (2, "storelib")):
            for value, what in (("cpu_time", "Time"), ("peak_bytes", "Peak memory")):
                one = self.median(f"ScanOfControllers/family:{family}/controllers:1", value)
                for count in (2, 4, 8, 16):
                    many = self.median(f"ScanOfControllers/family:{family}/controllers:{count}", value)
                    self.add(f"{what} per controller, {count} {name} / 1", many / count / one, 1.1)

    def rest(self):
        self.compare("Load and create the module / load Qt", "Load/Module", "Load/QtAlone", 1.2, "real_time")
        microseconds = self.median("AbortToCancel", "real_time")
        self.add("Abort to cancel / 10 ms", microseconds / 10_000, 1.0, f"{microseconds:.4g} us")


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("folder", type=pathlib.Path)
    arguments.add_argument("--draw", type=pathlib.Path)
    arguments.add_argument("--no-limits", action="store_true")
    options = arguments.parse_args()
    report = Report(read(options.folder))
    report.dispatch()
    report.module()
    report.growth()
    report.rest()
    print("\n".join(report.lines))
    if options.draw:
        options.draw.parent.mkdir(parents=True, exist_ok=True)
        options.draw.write_text(charts.ratios("Time taken, relative to the reference; the tick marks the limit",
                                              report.rows))
    if report.missed and not options.no_limits:
        sys.exit("missed: " + "; ".join(report.missed))


main()
