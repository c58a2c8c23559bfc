#!/usr/bin/env python3
"""editor.py FILE: prints a table of what the editor costs.

FILE is the output in JSON of editor_bench, whose benchmarks are named "what/side".
"""

import json
import statistics
import sys

wanted = {  # ms
    "first opening": 50,
    "later opening": 20,
    "effect with its editor": 20,
    "program change": 10,
    "idle call": 0.02,
}


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        results = json.load(file)
    times, memory = {}, {}
    for run in sorted(results["benchmarks"], key=lambda run: run["family_index"]):
        if run["run_type"] != "iteration":
            continue
        name, side = run["run_name"].split("/")[:2]
        times.setdefault((name, side), []).append(run["real_time"] / 1e6)
        for counter in ("for the first opening", "for each of 200 effects"):
            if counter in run:
                memory[counter] = run[counter] / 1e6
    print(f"{'ms':22}     least    median    wanted    bare X")
    for name, most in wanted.items():
        ours = times[name, "ours"]
        bare = f"{min(times[name, 'bare X']):9.4f}" if (name, "bare X") in times else ""
        row = f"{name:22} {min(ours):9.4f} {statistics.median(ours):9.4f} {most:9} {bare}"
        print(row.rstrip())
    for what, megabytes in memory.items():
        print(f"Memory {what}: {megabytes:.2f} MB")


if __name__ == "__main__":
    main()
