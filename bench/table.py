#!/usr/bin/env python3
"""table.py FILE: prints a table of the results of dspclasses_bench. FILE is its output in JSON."""

import json
import sys

sample_rate = 44100


def least_ns_per_frame(results):
    """(name, precision, side, block) -> minimum over the repetitions, in the order of registration."""
    least = {}
    registration = lambda run: (run["family_index"], run["per_family_instance_index"])
    for run in sorted(results["benchmarks"], key=registration):
        if run["run_type"] != "iteration":
            continue
        name, precision, side, block = run["run_name"].rsplit("/", 3)
        key = name, precision, side, int(block)
        ns = 1e9 / run["items_per_second"]
        least[key] = min(ns, least.get(key, ns))
    return least


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        least = least_ns_per_frame(json.load(file))
    width = max(len(name) for name, *_ in least)
    print(f"{'':{width}}                    ns per stereo frame")
    print(f"{'module or program':{width}}  precision  block    kernel     plain  ratio  x real time")
    for (name, precision, side, block), ns in least.items():
        if side == "kernel":
            plain = least[name, precision, "plain", block]
            speed = 1e9 / (ns * sample_rate)
            print(
                f"{name:{width}}  {precision:9}  {block:5}  {ns:8.2f}  {plain:8.2f}"
                f"  {plain / ns:5.2f}  {speed:11.0f}"
            )
    for (name, _, side, _), ns in least.items():
        if side == "chain":
            print(f"{name} that waits for the previous result: {ns:.2f} ns")


if __name__ == "__main__":
    main()
