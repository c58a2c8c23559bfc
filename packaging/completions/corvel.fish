# Completions of corvel for fish. The words come from corvel itself.

function __corvel_complete
    set -l words (commandline -opc) (commandline -ct)
    # A word that is being typed may have an open quote.
    set -l last (string replace -r '^["\']' '' -- $words[-1] | string unescape)
    set -l option (string match -r '^--[^=]*=' -- $last)
    set -l name (string replace -r '^--[^=]*=' '' -- $last)
    for line in ($words[1] complete $words[2..-2] "$last" 2>/dev/null)
        switch $line
            case @files
                string replace -r '^' -- "$option" (__fish_complete_path $name)
            case @folders
                string replace -r '^' -- "$option" (__fish_complete_directories $name)
            case '*'
                echo $line
        end
    end
end

complete -c corvel -f -a '(__corvel_complete)'
