# Completion of cutline(1) for fish.

function __cutline_printers
    timeout 2 lpstat -e 2>/dev/null; or timeout 2 cutline --list 2>/dev/null | string replace -r '[ :].*' ''
end

# What was said of printer and server, for questions of our own to the program.
function __cutline_asked
    set -l words (commandline -opc)
    for index in (seq 2 (count $words))
        switch $words[$index]
            case -d -h -U --ppd
                test $index -lt (count $words); and printf '%s\n' $words[$index] $words[(math $index + 1)]
            case -E
                echo -- -E
        end
    end
end

function __cutline_settings
    printf 'print-scaling=%s\n' auto none fit fill
    printf 'orientation-requested=%s\n' 3 4 5 6
    printf 'position=%s\n' center top bottom left right top-left top-right bottom-left bottom-right
    printf 'label-length=%s\n' paper content
    printf 'text-labels=%s\n' paragraph line
    printf 'page-set=%s\n' all odd even
    printf 'outputorder=%s\n' normal reverse
    printf 'mirror=%s\n' true false
    printf '%s\n' natural-scaling= text-font= text-size= text-size=auto raw
    timeout 2 cutline --choices (__cutline_asked) 2>/dev/null | awk '
        /^[^ *]/ { split($0, part, "/"); name = part[1]; next }
        { sub(/^[ *] /, ""); cut = index($0, "/"); print name "=" substr($0, 1, cut - 1) "\t" substr($0, cut + 1) }'
end

complete -c cutline -s d -x -a '(__cutline_printers)' -d 'Printer, or a preset of it'
complete -c cutline -s n -x -d 'Number of copies'
complete -c cutline -s P -x -d 'Pages, such as 1-4,7'
complete -c cutline -s t -x -d 'Title of the job'
complete -c cutline -s o -x -a '(__cutline_settings)' -d 'Option of the printer or the job'
complete -c cutline -s h -x -d 'Print server'
complete -c cutline -s E -d 'Insist on an encrypted connection'
complete -c cutline -s U -x -d 'User that the job is sent as'
complete -c cutline -l ppd -r -d 'Work on this PPD file'
complete -c cutline -l print -d 'Print at once'
complete -c cutline -l dry-run -r -d 'Write what would be sent into a PDF'
complete -c cutline -l wait -d 'End when the job has ended'
complete -c cutline -l each -d 'Every document is a job of its own'
complete -c cutline -l summary -d 'Show the summary of the panel'
complete -c cutline -l options -d 'Show what would be sent with the job'
complete -c cutline -l plan -d 'Show where the tape would be cut'
complete -c cutline -l json -d 'The plan for other programs'
complete -c cutline -l choices -d 'Show the options with their choices'
complete -c cutline -l snapshot -r -d 'Save a picture of the dialog'
complete -c cutline -l scale -x -a '1 2' -d 'Pixels per point of the picture'
complete -c cutline -s q -d 'Say nothing but errors'
complete -c cutline -l dark -d 'Light text on dark ground'
complete -c cutline -l list -d 'List the printers'
complete -c cutline -l ask-queue -x -a 'add remove list' -d 'The queue on which jobs wait for the dialog'
complete -c cutline -l held-job -x -d 'The dialog for a job that waits there'
complete -c cutline -l plugin-dir -x -a '(__fish_complete_directories)' -d 'Look for panels here first'
complete -c cutline -l marks -d 'Print times of the start'
complete -c cutline -l help -d 'Show a short text of use'
complete -c cutline -l version -d 'Show the version'
