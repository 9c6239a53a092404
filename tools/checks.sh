# Keeps count of what ./test did. Sourced by bash, after common.sh.
passed=0
failed=0
logs=$root/build/logs
mkdir -p "$logs"

log_of() {  # name
    echo "$logs/${1//[^A-Za-z0-9]/_}.log"
}

say_check() {  # name status time
    local log
    log=$(log_of "$1")
    if [ "$2" -eq 0 ]; then
        passed=$((passed + 1))
        echo "ok      $1 ($3)"
    else
        failed=$((failed + 1))
        echo "FAILED  $1 ($3), the whole log is $log:"
        tail -n 40 "$log" | sed 's/^/        /'
    fi
}

# Runs a command as one check; its output is shown only when it fails.
check() {  # name command...
    local name=$1 began=$SECONDS status=0
    shift
    "$@" >"$(log_of "$name")" 2>&1 || status=$?
    say_check "$name" "$status" "$((SECONDS - began)) s"
}

# Begins a check that takes what time the others leave: many tests wait more than they work.
# end_check says how it went; stop_check ends it before that.
begin_check() {  # name command...
    begun=$1
    shift
    set -m  # a process group of its own
    nice -n 19 "$@" >"$(log_of "$begun")" 2>&1 </dev/null &
    set +m
    begun_process=$!
}

end_check() {
    local status=0
    wait "$begun_process" || status=$?
    begun_process=
    say_check "$begun" "$status" 'beside the others'
}

stop_check() {
    [ -n "${begun_process:-}" ] && kill -- "-$begun_process" 2>/dev/null
}

# Runs a GoogleTest program and counts each of its tests. A program that crashes, hangs or has no
# tests counts as one more failure.
check_tests() {  # name seconds command...
    local name=$1 seconds=$2 log began=$SECONDS status=0 ok bad
    log=$(log_of "$1")
    shift 2
    # Into a file, since a program that it leaves running would keep a pipe open.
    timeout -k 10 "$seconds" "$@" >"$log" 2>&1 </dev/null || status=$?
    sed -i 's/\r$//' "$log"
    ok=$(grep -c '^\[       OK \]' "$log")
    bad=$(grep -cE '^\[  FAILED  \] .*\([0-9]+ ms\)$' "$log")
    if [ "$bad" -ne 0 ]; then
        echo "FAILED  $name, the whole log is $log:"
        awk '/^\[ RUN /{text = ""} {text = text "        " $0 "\n"}
             /^\[  FAILED  \] .*\([0-9]+ ms\)$/{printf "%s", text}' "$log" | head -n 200
    fi
    # A program that came to its end says so, and gives 1 when a test failed.
    if ! grep -q '^\[==========\] .* ran\. (' "$log" || [ $((ok + bad)) -eq 0 ] ||
        [ "$status" -ne $((bad > 0)) ]; then
        bad=$((bad + 1))
        echo "FAILED  $name ended early with status $status, the whole log is $log:"
        tail -n 20 "$log" | sed 's/^/        /'
    fi
    passed=$((passed + ok))
    failed=$((failed + bad))
    echo "        $name: $ok passed, $bad failed ($((SECONDS - began)) s)"
}

# Says the sum; true when nothing failed.
report() {
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ]
}
