#!/bin/bash
# Lets Prometheus' own tool look at the metrics that the recorder writes, at work and at its end.
#   check-metrics.sh [BUILD-FOLDER]
set -euo pipefail
bin=$(readlink -f "${1:-build}")/bin
state=$(mktemp -d)
trap 'kill "${simulator:-}" 2>/dev/null || true; rm -rf "$state"' EXIT

"$bin/mz6218-sim" --listen 127.62.18.3 >"$state/simulator.txt" &
simulator=$!
until grep -q '^Listening on' "$state/simulator.txt"; do
    sleep 0.1
done
"$bin/mz6218-cli" --lan 127.62.18.3 record --every 1s --count 4 --high -10 --low -30 --out "$state" \
    --prometheus "$state/meter.prom" &
recorder=$!
until grep -q '^mz6218_power_dbm' "$state/meter.prom" 2>/dev/null; do
    sleep 0.1
done
promtool check metrics <"$state/meter.prom"
wait $recorder
promtool check metrics <"$state/meter.prom"
grep -q '^mz6218_up{.*} 0$' "$state/meter.prom"
echo "promtool finds nothing to say."
