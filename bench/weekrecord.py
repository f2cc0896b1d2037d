#!/usr/bin/env python3
"""Writes a week's record at ten rows a second: seven csv files of some 0.9 GB for the benchmark.

usage: bench/weekrecord.py FOLDER [ROWS_PER_DAY]
"""
import math
import random
import sys
from pathlib import Path

HEADER = (
    "time,start,n_valid,n_invalid,mean_dbm,min_dbm,max_dbm,sigma_db,last_dbm,frequency_hz,"
    "offset_db,relative,averaging,valid,reason\n"
)
TAIL = "2450000000,-3.50,0,16,"


def clock(day, tenths):
    seconds, tenth = divmod(tenths, 10)
    if seconds >= 86400:
        day, seconds = day + 1, seconds - 86400
    minutes, second = divmod(seconds, 60)
    hour, minute = divmod(minutes, 60)
    return f"2026-11-{day:02}T{hour:02}:{minute:02}:{second:02}.{tenth}00+01:00"


def main():
    folder = Path(sys.argv[1])
    rows = int(sys.argv[2]) if len(sys.argv) > 2 else 860000
    folder.mkdir(parents=True, exist_ok=True)
    noise = random.Random(1)
    for day in range(16, 23):
        lines = [HEADER]
        start = clock(day, 0)
        for row in range(rows):
            time = clock(day, row + 1)
            if row % 100000 == 777:  # a reading that did not come
                lines.append(f"{time},{start},0,1,,,,,,{TAIL}0,timeout\n")
            else:
                level = -20 + 3 * math.sin(row / 50000) + noise.gauss(0, 0.05)
                low, high = level - 0.0312, level + 0.0298
                lines.append(
                    f"{time},{start},2,0,{level:.4f},{low:.4f},{high:.4f},0.0431,{high:.4f},"
                    f"{TAIL}1,ok\n"
                )
            start = time
        (folder / f"week-2026-11-{day}.csv").write_text("".join(lines))


if __name__ == "__main__":
    main()
